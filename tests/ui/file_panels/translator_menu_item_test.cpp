#include "ui/file_panels/translator_menu_item.h"

#include <gtest/gtest.h>

namespace kirto::test {

TEST(TranslatorMenuItem, CarriesATranslatorAndATypeBesidesItsLabelAndCommand) {
    const TranslatorMenuItem item("PNG image sequence", 7, 3, 0x504E4720);

    EXPECT_EQ(item.text(), "PNG image sequence");
    EXPECT_EQ(item.Command(), 7u);
    EXPECT_EQ(item.Translator(), 3);
    EXPECT_EQ(item.OutputType(), 0x504E4720u);
}

}  // namespace kirto::test
