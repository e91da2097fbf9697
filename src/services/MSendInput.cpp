#include "services/MSendInput.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/Text.h"
#include "platform/CodePage.h"
#include "services/Programma.h"
#include "services/Toetsenbord.h"

namespace MSendInput {

namespace {

using toetsenbord::Aanslag;

constexpr std::uint32_t kToetsenbord = 1;
constexpr std::uint32_t kExtended = 1;
constexpr std::uint32_t kLos = 2;
constexpr std::uint32_t kUnicode = 4;

// What an open modifier holds.
constexpr unsigned kShiftVast = 1;
constexpr unsigned kControlVast = 2;
constexpr unsigned kAltVast = 4;

// The 16-bit value of a character.
std::uint16_t unicode_van(char teken) {
    const std::string utf8 = to_utf8(std::string_view(&teken, 1));
    const auto byte = [&](std::size_t at) { return static_cast<unsigned>(static_cast<unsigned char>(utf8[at])); };
    unsigned waarde = byte(0);
    if (utf8.size() == 2) waarde = (byte(0) & 0x1FU) << 6U | (byte(1) & 0x3FU);
    if (utf8.size() == 3) waarde = (byte(0) & 0x0FU) << 12U | (byte(1) & 0x3FU) << 6U | (byte(2) & 0x3FU);
    return static_cast<std::uint16_t>(waarde);
}

// Reads a text token by token and collects the key events that it stands for.
class Lezer {
public:
    Lezer(const std::string& tekst, bool caps_lock) : tekst_(tekst), caps_lock_(caps_lock) {}

    std::vector<KeyRecord> lees() {
        while (positie_ < tekst_.size())
            lees_token();
        return std::move(records_);
    }

private:
    void lees_token() {
        if (positie_ >= tekst_.size()) return;  // a modifier at the end holds nothing
        const char teken = tekst_[positie_++];
        switch (teken) {
            case '+':
                return lees_modifier(toetsenbord::kShift, kShiftVast);
            case '^':
                return lees_modifier(toetsenbord::kControl, kControlVast);
            case '%':
                return lees_modifier(toetsenbord::kAlt, kAltVast);
            case '(':
                return lees_groep();
            case '{':
                return lees_accolade();
            default:
                gewoon_teken(teken);
        }
    }

    void lees_modifier(std::uint16_t toets, unsigned vlag) {
        voeg_toe(toets, 0, 0);
        modifierVlaggen_ |= vlag;
        lees_token();
        voeg_toe(toets, 0, kLos);
        modifierVlaggen_ &= ~vlag;
    }

    // Without a closing parenthesis, or with nothing in it, the group is no group: what follows is read as it stands.
    void lees_groep() {
        const std::size_t einde = tekst_.find(')', positie_);
        if (einde == std::string::npos || einde == positie_) return;
        while (positie_ < einde)
            gewoon_teken(tekst_[positie_++]);
        positie_ = einde + 1;
    }

    // The content has one character at least, so that {}} names the brace itself.
    void lees_accolade() {
        const std::size_t einde = tekst_.find('}', positie_ + 1);
        if (einde == std::string::npos) return;
        const Pieces delen = split(std::string_view(tekst_).substr(positie_, einde - positie_), " ");
        const int aantal = delen.last() >= 1 ? std::max(1, numeric_value(delen[1])) : 1;
        for (int keer = 0; keer < aantal; ++keer)
            druk_naam(delen[0]);
        positie_ = einde + 1;
    }

    void druk_naam(const std::string& naam) {
        if (naam.empty()) return;
        if (const auto benoemd = toetsenbord::toets_van_naam(upper_case(naam))) {
            druk({benoemd->toets}, benoemd->extended);
        } else if (const auto aanslag = toetsenbord::aanslag_van(naam[0])) {
            druk(*aanslag, false);  // Caps Lock has no say in braces.
        } else {
            stuur_unicode(unicode_van(naam[0]));
        }
    }

    void gewoon_teken(char teken) {
        const std::uint16_t waarde = unicode_van(teken);
        auto aanslag = waarde <= 255 ? toetsenbord::aanslag_van(teken) : std::nullopt;
        if (teken == '~') aanslag = Aanslag{toetsenbord::kEnter};
        if (!aanslag) return stuur_unicode(waarde);
        const bool letter = (teken >= 'A' && teken <= 'Z') || (teken >= 'a' && teken <= 'z');
        if (caps_lock_ && letter) aanslag->shift = !aanslag->shift;
        druk(*aanslag, false);
    }

    void druk(const Aanslag& aanslag, bool extended) {
        const bool met_shift = aanslag.shift && (modifierVlaggen_ & kShiftVast) == 0;
        const std::uint32_t vlaggen = extended ? kExtended : 0;
        if (met_shift) voeg_toe(toetsenbord::kShift, 0, 0);
        if (aanslag.control_alt) {
            voeg_toe(toetsenbord::kControl, 0, 0);
            voeg_toe(toetsenbord::kAlt, 0, 0);
        }
        voeg_toe(aanslag.toets, 0, vlaggen);
        voeg_toe(aanslag.toets, toetsenbord::scan_code(aanslag.toets), vlaggen + kLos);
        if (aanslag.control_alt) {
            voeg_toe(toetsenbord::kControl, 0, kLos);
            voeg_toe(toetsenbord::kAlt, 0, kLos);
        }
        if (met_shift) voeg_toe(toetsenbord::kShift, 0, kLos);
    }

    void stuur_unicode(std::uint16_t waarde) {
        voeg_toe(0, waarde, kUnicode);
        voeg_toe(0, waarde, kUnicode + kLos);
    }

    void voeg_toe(std::uint16_t toets, std::uint16_t scan, std::uint32_t vlaggen) {
        records_.push_back({.type = kToetsenbord, .virtual_key = toets, .scan_code = scan, .flags = vlaggen});
    }

    const std::string& tekst_;
    const bool caps_lock_;
    std::size_t positie_ = 0;  // characters consumed
    unsigned modifierVlaggen_ = 0;
    std::vector<KeyRecord> records_;
};

}  // namespace

void VerstuurToetsen(Programma& programma, const std::string& tekst, bool /*wachten*/) {
    const std::vector<KeyRecord> records = Lezer(tekst, programma.platform.caps_lock()).lees();
    if (!records.empty()) programma.platform.send_keys(records);
}

}  // namespace MSendInput
