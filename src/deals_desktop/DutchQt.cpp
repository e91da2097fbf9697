#include "deals_desktop/DutchQt.h"

#include <QCoreApplication>
#include <QHash>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace deals_desktop {

namespace {

constexpr struct {
    const char* english;
    const char* dutch;
} kTexts[] = {
    // Buttons.
    {"OK", "OK"},
    {"&OK", "&OK"},
    {"Cancel", "Annuleren"},
    {"&Cancel", "&Annuleren"},
    {"Open", "Openen"},
    {"&Open", "&Openen"},
    {"Save", "Bewaren"},
    {"&Save", "&Bewaren"},
    {"Save All", "Alles bewaren"},
    {"&Yes", "&Ja"},
    {"Yes to &All", "Ja op &alles"},
    {"&No", "&Nee"},
    {"N&o to All", "N&ee op alles"},
    {"Close", "Sluiten"},
    {"&Close", "&Sluiten"},
    {"Discard", "Weggooien"},
    {"Help", "Help"},
    {"Apply", "Toepassen"},
    {"Retry", "Opnieuw proberen"},
    {"Abort", "Afbreken"},
    {"Ignore", "Negeren"},
    {"Reset", "Herstellen"},
    {"Show Details...", "Meer tonen..."},
    {"Hide Details...", "Minder tonen..."},
    // The choice of a file.
    {"Look in:", "Map:"},
    {"Back", "Terug"},
    {"Go back", "Naar de vorige map"},
    {"Forward", "Vooruit"},
    {"Go forward", "Naar de volgende map"},
    {"Parent Directory", "Map erboven"},
    {"Go to the parent directory", "Naar de map erboven"},
    {"Create New Folder", "Nieuwe map"},
    {"Create a New Folder", "Maakt een nieuwe map"},
    {"List View", "Lijst"},
    {"Change to list view mode", "Alleen namen tonen"},
    {"Detail View", "Details"},
    {"Change to detail view mode", "Ook grootte en datum tonen"},
    {"Sidebar", "Plaatsen"},
    {"List of places and bookmarks", "Vaste plaatsen"},
    {"Files", "Bestanden"},
    {"Files listing from the selected directory", "De bestanden in de gekozen map"},
    {"File &name:", "Bestands&naam:"},
    {"Files of type:", "Soort bestand:"},
    {"&Choose", "&Kiezen"},
    {"&Rename", "&Hernoemen"},
    {"&Delete", "&Verwijderen"},
    {"Delete", "Verwijderen"},
    {"Show &hidden files", "Ver&borgen bestanden tonen"},
    {"&New Folder", "&Nieuwe map"},
    {"New Folder", "Nieuwe map"},
    {"Save As", "Bewaren als"},
    {"Find Directory", "Map zoeken"},
    {"Directory:", "Map:"},
    {"Directories", "Mappen"},
    {"All Files (*)", "Alle bestanden (*)"},
    {"Recent Places", "Onlangs gebruikt"},
    {"Remove", "Weghalen"},
    {"Show ", "Tonen: "},
    {"%1 already exists.\nDo you want to replace it?", "%1 bestaat al.\nVervangen?"},
    {"%1\nFile not found.\nPlease verify the correct file name was given.",
     "%1\nis er niet. Is de naam goed geschreven?"},
    {"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
     "%1\nis geen map die er is. Is de naam goed geschreven?"},
    {"'%1' is write protected.\nDo you want to delete it anyway?",
     "%1 is beschermd tegen wijzigen.\nToch verwijderen?"},
    {"Are you sure you want to delete '%1'?", "%1 verwijderen?"},
    {"Could not delete directory.", "De map kan niet worden verwijderd."},
    {"Name", "Naam"},
    {"Size", "Grootte"},
    {"Type", "Soort"},
    {"Kind", "Soort"},
    {"Date Modified", "Gewijzigd"},
    {"Computer", "Computer"},
    {"My Computer", "Deze computer"},
    {"Drive", "Schijf"},
    {"Folder", "Map"},
    {"File Folder", "Map"},
    {"File", "Bestand"},
    {"%1 File", "%1-bestand"},
    {"Shortcut", "Snelkoppeling"},
    {"Alias", "Snelkoppeling"},
    {"Unknown", "Onbekend"},
    {"%1 byte(s)", "%1 bytes"},
    {"%1 bytes", "%1 bytes"},
    // The menu of a field.
    {"&Undo", "&Ongedaan maken"},
    {"&Redo", "Op&nieuw"},
    {"Cu&t", "K&nippen"},
    {"&Copy", "&Kopi\u00EBren"},
    {"Copy &Link Location", "&Adres kopi\u00EBren"},
    {"&Paste", "&Plakken"},
    {"Select All", "Alles kiezen"},
    // The printing.
    {"Print", "Afdrukken"},
    {"&Print", "&Afdrukken"},
    {"Printer", "Printer"},
    {"&Name:", "&Naam:"},
    {"P&roperties", "&Eigenschappen"},
    {"Location:", "Plaats:"},
    {"Preview", "Voorbeeld"},
    {"Type:", "Soort:"},
    {"Output &file:", "Uitvoer&bestand:"},
    {"Print to File (PDF)", "In een bestand (PDF)"},
    {"Write PDF file", "PDF-bestand schrijven"},
    {"Local file", "Bestand"},
    {"&Options >>", "&Meer >>"},
    {"&Options <<", "&Minder <<"},
    {"Properties", "Eigenschappen"},
    {"Job Options", "Opdracht"},
    {"Copies", "Exemplaren"},
    {"Copies:", "Exemplaren:"},
    {"Copie&s:", "E&xemplaren:"},
    {"Print range", "Wat wordt afgedrukt"},
    {"Print all", "Alles"},
    {"Pages from", "Bladzijden"},
    {"to", "tot en met"},
    {"Pages", "Bladzijden"},
    {"Page Set:", "Bladzijden:"},
    {"Current Page", "Deze bladzijde"},
    {"Selection", "Keuze"},
    {"Output Settings", "Uitvoer"},
    {"Collate", "Sorteren"},
    {"Reverse", "Omgekeerde volgorde"},
    {"Options", "Opties"},
    {"Color Mode", "Kleur"},
    {"Color", "Kleur"},
    {"Grayscale", "Grijs"},
    {"Double Sided Printing", "Dubbelzijdig"},
    {"Duplex Printing", "Dubbelzijdig"},
    {"Off", "Nee"},
    {"None", "Nee"},
    {"Long side binding", "Over de lange kant"},
    {"Short side binding", "Over de korte kant"},
    {"Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. "
     "E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.",
     "Bladzijden met komma's ertussen; een streepje staat voor tot en met. 3,5-7 is 3, 5, 6 en 7."},
    {"Scroll Left", "Naar links"},
    {"Scroll Right", "Naar rechts"},
    {"Long side", "Over de lange kant"},
    {"Short side", "Over de korte kant"},
    {"All Pages", "Alle"},
    {"Odd Pages", "Oneven"},
    {"Even Pages", "Even"},
    {"Paper", "Papier"},
    {"Page size:", "Formaat:"},
    {"Width:", "Breedte:"},
    {"Height:", "Hoogte:"},
    {"Paper source:", "Lade:"},
    {"Orientation", "Stand"},
    {"Portrait", "Staand"},
    {"Landscape", "Liggend"},
    {"Reverse landscape", "Liggend, omgekeerd"},
    {"Reverse portrait", "Staand, omgekeerd"},
    {"Margins", "Marges"},
    {"top margin", "bovenmarge"},
    {"left margin", "linkermarge"},
    {"right margin", "rechtermarge"},
    {"bottom margin", "ondermarge"},
    {"Page Layout", "Indeling"},
    {"Page order:", "Volgorde:"},
    {"Pages per sheet:", "Bladzijden op een vel:"},
    {"Form", "Formulier"},
    {"Page", "Bladzijde"},
    {"Advanced", "Meer"},
    {"Custom", "Eigen"},
    {"Print To File ...", "In een bestand afdrukken..."},
    {"%1 is a directory.\nPlease choose a different file name.", "%1 is een map.\nKies een andere naam."},
    {"File %1 is not writable.\nPlease choose a different file name.",
     "%1 kan niet worden geschreven.\nKies een andere naam."},
    {"%1 already exists.\nDo you want to overwrite it?", "%1 bestaat al.\nVervangen?"},
    {"The 'From' value cannot be greater than the 'To' value.", "De eerste bladzijde ligt achter de laatste."},
};

// The words of Qt are looked for without regard to where they stand: the same word is the same button everywhere.
class Dutch final : public QTranslator {
public:
    explicit Dutch(QObject* parent) : QTranslator(parent) {
        for (const auto& text : kTexts)
            texts_.insert(QByteArray(text.english), QString::fromUtf8(text.dutch));
    }
    QString translate(const char* context, const char* text, const char*, int) const override {
        return context[0] == 'Q' ? texts_.value(QByteArray::fromRawData(text, qstrlen(text))) : QString();
    }
    bool isEmpty() const override { return false; }

private:
    QHash<QByteArray, QString> texts_;
};

}  // namespace

void teach_qt_dutch() {
    QCoreApplication* const application = QCoreApplication::instance();
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
    auto* const qt = new QTranslator(application);
    const QString beside = QCoreApplication::applicationDirPath() + QStringLiteral("/translations");
    for (const QString& folder : {QLibraryInfo::path(QLibraryInfo::TranslationsPath), beside}) {
        if (qt->load(QStringLiteral("qtbase_nl"), folder)) {
            QCoreApplication::installTranslator(qt);
            break;
        }
    }
    QCoreApplication::installTranslator(new Dutch(application));
}

}  // namespace deals_desktop
