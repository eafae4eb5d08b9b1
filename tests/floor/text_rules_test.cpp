// The rules of typed text: blank, width, characters the game can store, control characters.
#include "floor/text_rules.h"

#include <gtest/gtest.h>

#include <string>

using namespace trovane;

namespace {

std::string refusal(const std::string& text, std::size_t width = 32) { return textRefusal("The name", text, width); }

}  // namespace

TEST(TextRules, AFieldExactlyFullIsTakenAndOneMoreCharacterIsRefusedWithTheWidth) {
    EXPECT_EQ(refusal(std::string(32, 'a')), "");
    EXPECT_EQ(refusal(std::string(33, 'a')), "The name is 33 characters long; it may be at most 32.");
    // Blanks at both ends are cut as the game stores the name: 32 letters between them still fit.
    EXPECT_EQ(refusal("  " + std::string(32, 'a') + "  "), "");
    // 31 letters and "ë" are 32 characters (33 bytes of UTF-8, 32 bytes of Windows-1252).
    EXPECT_EQ(refusal(std::string(31, 'a') + "ë"), "");
    EXPECT_EQ(refusal(std::string(32, 'a') + "ë"), "The name is 33 characters long; it may be at most 32.");
}

TEST(TextRules, BlankMeansNothingButBlanksAndBytesThatAreNotUtf8AreRefused) {
    EXPECT_EQ(refusal(""), "The name cannot be blank.");
    EXPECT_EQ(refusal("   "), "The name cannot be blank.");
    EXPECT_EQ(refusal(" a "), "");
    EXPECT_EQ(refusal("a\xe9z"), "The name holds bytes that are not text.");
    EXPECT_EQ(refusal("\xc0\xaf"), "The name holds bytes that are not text.");  // an overlong "/"
}

TEST(TextRules, ACharacterWithoutAWindows1252ByteIsRefusedByName) {
    EXPECT_EQ(refusal("Zoë"), "");
    EXPECT_EQ(refusal("€uro"), "");  // the euro sign has byte 0x80
    EXPECT_EQ(refusal("Ω"), "The name holds \"Ω\", a character the game cannot store.");
    EXPECT_EQ(refusal("Tour 🎸"), "The name holds \"🎸\", a character the game cannot store.");
    EXPECT_EQ(refusal("Who?"), "") << "a question mark is a character of its own, not a stand-in";
}

TEST(TextRules, ControlCharactersAreRefusedByName) {
    EXPECT_EQ(refusal("Le\te"), "The name holds a tab; type letters, digits and punctuation only.");
    EXPECT_EQ(refusal("Le\ne"), "The name holds a line break; type letters, digits and punctuation only.");
    EXPECT_EQ(refusal("\x1b[31mRed"), "The name holds an escape; type letters, digits and punctuation only.");
    EXPECT_EQ(refusal("a\x7f"),
              "The name holds the control character U+007F; type letters, digits and punctuation only.");
    // U+0085, a C1 control, has a Windows-1252 byte but is still no text.
    EXPECT_EQ(refusal("a\xc2\x85"),
              "The name holds the control character U+0085; type letters, digits and punctuation only.");
    EXPECT_EQ(refusal("\x1f"),
              "The name holds the control character U+001F; type letters, digits and punctuation only.");
    EXPECT_EQ(refusal(" "), "The name cannot be blank.") << "0x20, one past the controls, is a blank";
}

TEST(TextRules, SaveNamesKeepTheSameRulesOnTheirThirtyTwoCharacters) {
    EXPECT_EQ(saveNameRefusal(std::string(32, 's')), "");
    EXPECT_EQ(saveNameRefusal(std::string(33, 's')), "The save's name is 33 characters long; it may be at most 32.");
    EXPECT_EQ(saveNameRefusal("a\tb"), "The save's name holds a tab; type letters, digits and punctuation only.");
}

TEST(TextRules, CapitalsFoldForAsciiAndLatinLetters) {
    EXPECT_EQ(foldCapitals("GREYSTONE Music"), "greystone music");
    EXPECT_EQ(foldCapitals("ÉCOLE ZOË"), "école zoë");
    EXPECT_EQ(foldCapitals("×Þ"), "×þ") << "the multiplication sign sits among the capitals but is none";
}
