#include "services/MSendInput.h"

#include <gtest/gtest.h>

#include <cstdio>

#include "support/Program.h"

namespace {

// "+10" is key 0x10 going down, "-10" the same key going up; "x" an extended key, "u" a Unicode character.
std::string shorthand(const std::vector<platform::KeyRecord>& records) {
    std::string text;
    for (const platform::KeyRecord& record : records) {
        const bool unicode = (record.flags & 4U) != 0;
        char code[16];
        std::snprintf(code, sizeof code, "%02X", unicode ? record.scan_code : record.virtual_key);
        text += (text.empty() ? "" : " ") + std::string((record.flags & 2U) != 0 ? "-" : "+") + code;
        text += unicode ? "u" : (record.flags & 1U) != 0 ? "x" : "";
    }
    return text;
}

std::vector<platform::KeyRecord> sent_for(const std::string& text, bool caps_lock = false) {
    Program program;
    program.interpreter.platform.caps_lock_on = caps_lock;
    services::MSendInput::VerstuurToetsen(program.programma, text, false);
    return program.interpreter.platform.keys;
}

TEST(MSendInput, TextsBecomeKeyEvents) {
    const struct {
        const char* text;
        const char* events;
    } rows[] = {
        {"", ""},
        {"+{END}", "+10 +23x -23x -10"},
        {"a", "+41 -41"},
        {"A", "+10 +41 -41 -10"},
        {"~", "+0D -0D"},
        {"!", "+10 +31 -31 -10"},
        {"}", "+10 +DD -DD -10"},  // outside braces an ordinary character
        {")", "+10 +30 -30 -10"},

        // Modifiers hold one token, and nest.
        {"+ab", "+10 +41 -41 -10 +42 -42"},
        {"+AB", "+10 +41 -41 -10 +10 +42 -42 -10"},
        {"+^x", "+10 +11 +58 -58 -11 -10"},
        {"^%{DEL}", "+11 +12 +2Ex -2Ex -12 -11"},
        {"++ab", "+10 +10 +41 -41 -10 -10 +42 -42"},
        {"+", "+10 -10"},

        // Groups hold plain characters; one that is none is passed over.
        {"+(ab)c", "+10 +41 -41 +42 -42 -10 +43 -43"},
        {"(a~)", "+41 -41 +0D -0D"},
        {"(+)", "+10 +BB -BB -10"},
        {"(a", "+41 -41"},
        {"()a", "+10 +30 -30 -10 +41 -41"},

        // Braces: names in any case, repeats, single characters.
        {"{end}", "+23x -23x"},
        {"{TAB 3}", "+09 -09 +09 -09 +09 -09"},
        {"{TAB 0}{TAB -2}{TAB x}", "+09 -09 +09 -09 +09 -09"},
        {"{BREAK}{PAUSE}", "+13x -13x +13 -13"},
        {"{F1}{f16}", "+70 -70 +7F -7F"},
        {"{F17}", "+10 +46 -46 -10"},  // no such name: its first letter
        {"{home sweet}", "+24x -24x"},
        {"{}}", "+10 +DD -DD -10"},
        {"{{}", "+10 +DB -DB -10"},
        {"{~}", "+10 +C0 -C0 -10"},
        {"{+ 2}", "+10 +BB -BB -10 +10 +BB -BB -10"},
        {"{a", "+41 -41"},
        {"{}", "+10 +DD -DD -10"},
        {"{ }", ""},

        // Accented characters need Control plus Alt; what no key types goes as Unicode.
        {"\xE9", "+11 +12 +45 -45 -11 -12"},
        {"\xC9", "+10 +11 +12 +45 -45 -11 -12 -10"},
        {"\xE8", "+E8u -E8u"},
        {"\x80", "+20ACu -20ACu"},
        {"{\xE8 2}", "+E8u -E8u +E8u -E8u"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(shorthand(sent_for(row.text)), row.events) << row.text;
}

TEST(MSendInput, CapsLockTurnsShiftOfLettersAround) {
    EXPECT_EQ(shorthand(sent_for("aB1", true)), "+10 +41 -41 -10 +42 -42 +31 -31");
    EXPECT_EQ(shorthand(sent_for("{a}", true)), "+41 -41");
    EXPECT_EQ(shorthand(sent_for("+a", true)), "+10 +41 -41 -10");
}

TEST(MSendInput, OnlyTheKeyThatGoesUpHasItsScanCode) {
    const std::vector<platform::KeyRecord> end = sent_for("{END}");
    ASSERT_EQ(end.size(), 2U);
    EXPECT_EQ(end[0], (platform::KeyRecord{.type = 1, .virtual_key = 0x23, .scan_code = 0, .flags = 1}));
    EXPECT_EQ(end[1], (platform::KeyRecord{.type = 1, .virtual_key = 0x23, .scan_code = 0x4F, .flags = 3}));

    const struct {
        const char* text;
        int scan;
    } rows[] = {{"q", 0x10}, {"1", 0x02}, {"/", 0x35}, {" ", 0x39}, {"~", 0x1C}, {"{F11}", 0x57}, {"{PAUSE}", 0}};
    for (const auto& row : rows)
        EXPECT_EQ(sent_for(row.text).back().scan_code, row.scan) << row.text;
}

TEST(MSendInput, RepeatsAreNotBounded) { EXPECT_EQ(sent_for("{TAB 5000}").size(), 10000U); }

}  // namespace
