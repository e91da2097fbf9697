#include "platform/KeyLayout.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <map>

namespace platform {

namespace key_layout {

namespace {

// What a key types alone, with Shift, with Control plus Alt, and with all of them; 0 for nothing.
struct TypingKey {
    std::uint16_t key;
    std::uint16_t scan;
    char characters[4];
};

constexpr TypingKey kTypingKeys[] = {
    {0xC0, 0x29, {'`', '~'}},
    {'1', 0x02, {'1', '!', '\xA1', '\xB9'}},
    {'2', 0x03, {'2', '@', '\xB2'}},
    {'3', 0x04, {'3', '#', '\xB3'}},
    {'4', 0x05, {'4', '$', '\xA4', '\xA3'}},
    {'5', 0x06, {'5', '%', '\x80'}},
    {'6', 0x07, {'6', '^', '\xBC'}},
    {'7', 0x08, {'7', '&', '\xBD'}},
    {'8', 0x09, {'8', '*', '\xBE'}},
    {'9', 0x0A, {'9', '(', '\x91'}},
    {'0', 0x0B, {'0', ')', '\x92'}},
    {0xBD, 0x0C, {'-', '_', '\xA5'}},
    {0xBB, 0x0D, {'=', '+', '\xD7', '\xF7'}},
    {'Q', 0x10, {'q', 'Q', '\xE4', '\xC4'}},
    {'W', 0x11, {'w', 'W', '\xE5', '\xC5'}},
    {'E', 0x12, {'e', 'E', '\xE9', '\xC9'}},
    {'R', 0x13, {'r', 'R', '\xAE'}},
    {'T', 0x14, {'t', 'T', '\xFE', '\xDE'}},
    {'Y', 0x15, {'y', 'Y', '\xFC', '\xDC'}},
    {'U', 0x16, {'u', 'U', '\xFA', '\xDA'}},
    {'I', 0x17, {'i', 'I', '\xED', '\xCD'}},
    {'O', 0x18, {'o', 'O', '\xF3', '\xD3'}},
    {'P', 0x19, {'p', 'P', '\xF6', '\xD6'}},
    {0xDB, 0x1A, {'[', '{', '\xAB'}},
    {0xDD, 0x1B, {']', '}', '\xBB'}},
    {'A', 0x1E, {'a', 'A', '\xE1', '\xC1'}},
    {'S', 0x1F, {'s', 'S', '\xDF', '\xA7'}},
    {'D', 0x20, {'d', 'D', '\xF0', '\xD0'}},
    {'F', 0x21, {'f', 'F'}},
    {'G', 0x22, {'g', 'G'}},
    {'H', 0x23, {'h', 'H'}},
    {'J', 0x24, {'j', 'J'}},
    {'K', 0x25, {'k', 'K'}},
    {'L', 0x26, {'l', 'L', '\xF8', '\xD8'}},
    {0xBA, 0x27, {';', ':', '\xB6', '\xB0'}},
    {0xDE, 0x28, {'\'', '"', '\xB4', '\xA8'}},
    {0xDC, 0x2B, {'\\', '|', '\xAC', '\xA6'}},
    {'Z', 0x2C, {'z', 'Z', '\xE6', '\xC6'}},
    {'X', 0x2D, {'x', 'X'}},
    {'C', 0x2E, {'c', 'C', '\xA9', '\xA2'}},
    {'V', 0x2F, {'v', 'V'}},
    {'B', 0x30, {'b', 'B'}},
    {'N', 0x31, {'n', 'N', '\xF1', '\xD1'}},
    {'M', 0x32, {'m', 'M', '\xB5'}},
    {0xBC, 0x33, {',', '<', '\xE7', '\xC7'}},
    {0xBE, 0x34, {'.', '>'}},
    {0xBF, 0x35, {'/', '?', '\xBF'}},
    {0x20, 0x39, {' '}},
    {0x08, 0x0E, {'\b'}},
    {0x09, 0x0F, {'\t'}},
    {kEnter, 0x1C, {'\r'}},
    {0x1B, 0x01, {'\x1B'}},
};

struct KeyName {
    const char* name;
    std::uint16_t key;
    bool extended;
};

constexpr KeyName kKeyNames[] = {
    {"BACKSPACE", 0x08, false},  {"BS", 0x08, false},      {"BKSP", 0x08, false},       {"BREAK", 0x13, true},
    {"CAPSLOCK", 0x14, false},   {"DELETE", 0x2E, true},   {"DEL", 0x2E, true},         {"DOWN", 0x28, true},
    {"END", 0x23, true},         {"ENTER", kEnter, false}, {"ESC", 0x1B, false},        {"HELP", 0x2F, false},
    {"HOME", 0x24, true},        {"INS", 0x2D, true},      {"INSERT", 0x2D, true},      {"LEFT", 0x25, true},
    {"NUMLOCK", 0x90, true},     {"PGDN", 0x22, true},     {"PGUP", 0x21, true},        {"PAUSE", 0x13, false},
    {"PRINT", 0x2A, true},       {"PRTSC", 0x2C, true},    {"PRTSCN", 0x2C, true},      {"PRINTSCRN", 0x2C, true},
    {"PRINTSCREEN", 0x2C, true}, {"RIGHT", 0x27, true},    {"SCROLLLOCK", 0x91, false}, {"SELECT", 0x29, false},
    {"TAB", 0x09, false},        {"UP", 0x26, true},
};
constexpr int kF1 = 0x70;
constexpr int kFunctionKeys = 16;

// Keys that type nothing. Those that are not here, such as PAUSE, have no scan code of one byte.
constexpr std::pair<std::uint16_t, std::uint16_t> kOtherScanCodes[] = {
    {kShift, 0x2A}, {kControl, 0x1D}, {kAlt, 0x38}, {0x14, 0x3A}, {0x21, 0x49}, {0x22, 0x51}, {0x23, 0x4F},
    {0x24, 0x47},   {0x25, 0x4B},     {0x26, 0x48}, {0x27, 0x4D}, {0x28, 0x50}, {0x2C, 0x54}, {0x2D, 0x52},
    {0x2E, 0x53},   {0x2F, 0x63},     {0x70, 0x3B}, {0x71, 0x3C}, {0x72, 0x3D}, {0x73, 0x3E}, {0x74, 0x3F},
    {0x75, 0x40},   {0x76, 0x41},     {0x77, 0x42}, {0x78, 0x43}, {0x79, 0x44}, {0x7A, 0x57}, {0x7B, 0x58},
    {0x7C, 0x64},   {0x7D, 0x65},     {0x7E, 0x66}, {0x7F, 0x67}, {0x90, 0x45}, {0x91, 0x46},
};

std::map<std::string, NamedKey> named_keys() {
    std::map<std::string, NamedKey> table;
    for (const KeyName& row : kKeyNames)
        table[row.name] = {row.key, row.extended};
    for (int number = 1; number <= kFunctionKeys; ++number) {
        table["F" + std::to_string(number)] = {static_cast<std::uint16_t>(kF1 + number - 1), false};
    }
    return table;
}

}  // namespace

std::optional<KeyStroke> stroke_for(char character) {
    if (character == 0) return {};
    for (const TypingKey& row : kTypingKeys) {
        const auto at = std::ranges::find(row.characters, character) - row.characters;
        if (at < std::ssize(row.characters)) return KeyStroke{row.key, at % 2 == 1, at >= 2};
    }
    return {};
}

std::optional<NamedKey> named_key(const std::string& name) {
    static const std::map<std::string, NamedKey> kKnown = named_keys();
    const auto found = kKnown.find(name);
    if (found == kKnown.end()) return {};
    return found->second;
}

std::uint16_t scan_code(std::uint16_t key) {
    const auto* typing_key = std::ranges::find(kTypingKeys, key, &TypingKey::key);
    if (typing_key != std::end(kTypingKeys)) return typing_key->scan;
    const auto* other = std::ranges::find(kOtherScanCodes, key, [](const auto& pair) { return pair.first; });
    return other != std::end(kOtherScanCodes) ? other->second : 0;
}

}  // namespace key_layout

}  // namespace platform
