// The rules of typed text: blank, width, characters the game can store, control characters.
#include "floor/text_rules.h"

#include <gtest/gtest.h>

#include <string>

using namespace trovane;

namespace {

std::string refusal(const std::string& text) { return textRefusal("The name", text, 32); }
std::string holds(const std::string& what) {
    return "The name holds " + what + "; type letters, digits and punctuation only.";
}

}  // namespace

TEST(TextRules, WidthBlanksBytesAndCharactersTheGameCannotStore) {
    EXPECT_EQ(refusal(std::string(32, 'a')), "");
    EXPECT_EQ(refusal(std::string(33, 'a')), "The name is 33 characters long; it may be at most 32.");
    // Blanks at both ends are cut as the game stores the name: 32 letters between them still fit.
    EXPECT_EQ(refusal("  " + std::string(32, 'a') + "  "), "");
    // 31 letters and "ë" are 32 characters (33 bytes of UTF-8, 32 bytes of Windows-1252).
    EXPECT_EQ(refusal(std::string(31, 'a') + "ë"), "");
    EXPECT_EQ(refusal(std::string(32, 'a') + "ë"), "The name is 33 characters long; it may be at most 32.");
    EXPECT_EQ(refusal(""), "The name cannot be blank.");
    EXPECT_EQ(refusal("   "), "The name cannot be blank.");
    EXPECT_EQ(refusal(" a "), "");
    EXPECT_EQ(refusal("a\xe9z"), "The name holds bytes that are not text.");
    EXPECT_EQ(refusal("\xc0\xaf"), "The name holds bytes that are not text.");  // an overlong "/"
    EXPECT_EQ(refusal("Zoë"), "");
    EXPECT_EQ(refusal("€uro"), "");  // the euro sign has byte 0x80
    EXPECT_EQ(refusal("Ω"), "The name holds \"Ω\", a character the game cannot store.");
    EXPECT_EQ(refusal("Tour 🎸"), "The name holds \"🎸\", a character the game cannot store.");
    EXPECT_EQ(refusal("Who?"), "") << "a question mark is a character of its own, not a stand-in";
}

TEST(TextRules, ControlCharactersAreRefusedByNameAlsoInSaveNames) {
    EXPECT_EQ(refusal("Le\te"), holds("a tab"));
    EXPECT_EQ(refusal("Le\ne"), holds("a line break"));
    EXPECT_EQ(refusal("\x1b[31mRed"), holds("an escape"));
    EXPECT_EQ(refusal("a\x7f"), holds("the control character U+007F"));
    EXPECT_EQ(refusal("a\xc2\x85"), holds("the control character U+0085"));  // a C1 control with a Windows-1252 byte
    EXPECT_EQ(refusal("\x1f"), holds("the control character U+001F"));
    EXPECT_EQ(refusal(" "), "The name cannot be blank.") << "0x20, one past the controls, is a blank";
    EXPECT_EQ(saveNameRefusal(std::string(32, 's')), "");
    EXPECT_EQ(saveNameRefusal(std::string(33, 's')), "The save's name is 33 characters long; it may be at most 32.");
    EXPECT_EQ(saveNameRefusal("a\tb"), "The save's name holds a tab; type letters, digits and punctuation only.");
}

TEST(TextRules, CapitalsFoldForAsciiAndLatinLetters) {
    EXPECT_EQ(foldCapitals("GREYSTONE Music"), "greystone music");
    EXPECT_EQ(foldCapitals("ÉCOLE ZOË"), "école zoë");
    EXPECT_EQ(foldCapitals("×Þ"), "×þ") << "the multiplication sign sits among the capitals but is none";
}
