// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/scintilla_control.h"
#include "editor/scintilla_text_box.h"
#include "services/config_scanner.h"
#include "services/patch_list.h"
#include "support/scenario.h"
#include "text/windows_1250.h"

#include <gtest/gtest.h>

namespace kitwright {
namespace {

TEST(PatchClassName, IsTheFirstClassInsideTheBlock)
{
    for (const auto& [text, found] : testing::scenarioTable<2>("tables/patch_class.txt")) {
        std::string patchClass = "before";
        ReadPatchClassName(text, patchClass);
        EXPECT_EQ(patchClass, found) << text;
    }
}

struct PatchList : ::testing::Test {
    std::string added(const std::string& text, const std::string& item)
    {
        box.loadText(text);
        AddToPatchList(box, "Units[]", item);
        return std::string(box.text());
    }

    ScintillaControl control;
    ScintillaTextBox box{control, windows1250()};
};

std::string config(const std::string& lines)
{
    return "class CfgPatches\r\n{\r\n   class A\r\n   {\r\n" + lines
         + "\r\n   };\r\n};\r\nclass CfgWeapons {};\r\n";
}

TEST_F(PatchList, TakesTheItemInWhateverHandTheListIsWritten)
{
    for (const auto& [before, after] : testing::scenarioTable<2>("tables/patch_list.txt"))
        EXPECT_EQ(added(config(before), "New"), config(after));
}

TEST_F(PatchList, ScansTheFirstBlockFromTheKeywordOn)
{
    const auto inTwo = [](const std::string& first, const std::string& second) {
        return "class CfgPatches {\r\n class A {\r\n  units[]={" + first + "};\r\n };\r\n class B {\r\n  units[]={"
             + second + "};\r\n };\r\n};\r\n";
    };
    EXPECT_EQ(added(inTwo("", ""), "N"), inTwo("N", "N"));
    // A long item makes the scan read the list's closing brace twice, so that it ends with the first class.
    EXPECT_EQ(added(inTwo("", ""), "LongName"), inTwo("LongName", ""));
    const std::string list = "units[]={};\r\n";
    for (const std::string before : {"units[]={};\r\n// cfgPATCHES\r\n{\r\n", "// no units[]\r\nclass A {\r\n"})
        EXPECT_EQ(added(before + list + "};" + list, "N"), before + "units[]={N};\r\n};" + list);
    EXPECT_EQ(added("", "N"), "");

    for (const std::size_t start : {32'767U, 65'530U, 200'000U}) {
        const std::string front = "class A {\r\n units[]={};\r\n};\r\n" + std::string(start, ' ');
        EXPECT_EQ(added(front + config("units[]={Old};"), "New"), front + config("units[]={New,Old};"));
    }
    const std::string comment = std::string("// ").append(5000, 'x') + "\r\n";
    EXPECT_EQ(added(config(comment + list), "New"), config(comment + "units[]={New};\r\n"));
}

TEST_F(PatchList, AddsSeveralItemsLikeOneByOne)
{
    box.loadText(config("units[]={Old};"));
    AddToPatchList(box, "UNITS[]", std::vector<std::string>{"first", "\"second\"", "čtvrtý"});
    EXPECT_EQ(box.text(), config("units[]={čtvrtý,\"second\",first,Old};"));
    EXPECT_TRUE(box.range(0, box.caret()).ends_with("{čtvrtý,"));
}

} // namespace
} // namespace kitwright
