#pragma once

#include <QLatin1StringView>
#include <QString>
#include <string_view>

// The words that the real windows add to those of the program's own messages.
namespace desktop::words {

inline constexpr QLatin1StringView kProgram("Zandolin Lomert");
inline constexpr QLatin1StringView kYes("&Ja");
inline constexpr QLatin1StringView kNo("&Nee");
inline constexpr QLatin1StringView kOk("OK");
// For a screen reader: the strain without trump, and the states of a marker.
inline constexpr QLatin1StringView kNoTrump("Sans atout");
inline constexpr QLatin1StringView kWithText("met tekst");
inline constexpr QLatin1StringView kWithoutText("zonder tekst");
inline constexpr QLatin1StringView kInWork("wordt geschreven");
// And what stands in boxes that have no words beside them, by the names of the controls.
inline constexpr struct {
    std::string_view box;
    QLatin1StringView words;
} kBoxes[] = {{"txtVraag", QLatin1StringView("Vraag")},
              {"txtAntwoord", QLatin1StringView("Antwoord")},
              {"txtInformatie", QLatin1StringView("Tekst bij de kaart")},
              {"txtVoorbeeld", QLatin1StringView("Voorbeeld van de tekst")},
              {"msfgTavrin", QLatin1StringView("Gespeelde slagen")}};
// %1 is the number of characters that a box takes.
inline constexpr QLatin1StringView kBoxIsFull("Er passen %1 tekens in deze tekst; hij is nu vol.");
// %1 is what went wrong.
inline constexpr QLatin1StringView kNoProgramFolder(
    "De map \"Zandolin Lomert\" in uw persoonlijke map kan niet worden gemaakt:\n\n%1");
// %1 is the file.
inline constexpr QLatin1StringView kNoHelpViewer("Er is geen programma gevonden dat de handleiding kan openen:\n\n%1");

inline QString of_box(std::string_view name) {
    for (const auto& [box, words] : kBoxes) {
        if (box == name) return words;
    }
    return {};
}

}  // namespace desktop::words
