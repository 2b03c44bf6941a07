// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/class_block.h"
#include "wizards/face_block.h"
#include "wizards/vehicle_block.h"

#include <gtest/gtest.h>

#include <utility>

namespace kitwright {

namespace {

const std::vector<ListEntry> catalogue = {{"shotSpeed", 1, ""}, {"shapeFile", 2, ""}, {"displayText", 0, ""}};

PropertySetting used(std::string value)
{
    return {std::move(value), true};
}

class ClassBlockText : public ::testing::Test {
protected:
    ClassBlock blockOf(const std::vector<ClassRecord>& classes, std::vector<bool> ticked)
    {
        input.blockName = "CfgWeapons";
        input.catalogue = catalogue;
        input.classes = classes;
        input.ticked = std::move(ticked);
        input.fileExists = [this](const std::string& path) {
            ++asked;
            return path.ends_with(".p3d") || path == "bare";
        };
        return classBlock(input);
    }

    ClassBlockInput input;
    int asked = 0;
};

TEST_F(ClassBlockText, TickedClassesStandWithTheirTickedProperties)
{
    input.PatchClassName = "MyAddon";
    const ClassBlock block =
        blockOf({{"MyGun", "BaseGun", {used("900"), used(R"(C:\models\mygun.p3d)"), {"not ticked", false}}},
                 {"Left", "Out", {used("1"), used("/m/left.p3d"), {}}},
                 {"", "", {used(""), used(""), used("\"ěš\\č\"")}},
                 {"Third", "B", {{}, used("C:\\not \"here\\x.P3D"), {}}}},
                {true, false, true, true});
    EXPECT_EQ(block.text, "\r\nclass CfgWeapons\r\n{\r\n"
                          "   class MyGun: BaseGun\r\n   {\r\n"
                          "      shotSpeed = 900;\r\n"
                          "      shapeFile = \"\\MyAddon\\mygun.p3d\";\r\n"
                          "   };\r\n"
                          "   class : \r\n   {\r\n"
                          "      shotSpeed = ;\r\n"
                          "      shapeFile = \"\";\r\n"
                          "      displayText = \"ěš\\č\";\r\n"
                          "   };\r\n"
                          "   class Third: B\r\n   {\r\n"
                          "      shapeFile = \"C:\\not \"here\\x.P3D\";\r\n"
                          "   };\r\n"
                          "};\r\n");
    EXPECT_EQ(block.copies, (std::vector<FileCopy>{{R"(C:\models\mygun.p3d)", "mygun.p3d"}}));
}

TEST_F(ClassBlockText, DeclarationsStandBeforeEachClassAndEachFileIsTestedOnce)
{
    input.declarations = [](const std::string& base) { return "[" + base + "]"; };
    const std::vector<PropertySetting> properties = {{}, used("/m/a.p3d"), {}};
    const ClassBlock block = blockOf({{"A", "X", properties}, {"B", "Y", properties}}, {true, true});
    EXPECT_EQ(block.text, "\r\nclass CfgWeapons\r\n{\r\n"
                          "[X]   class A: X\r\n   {\r\n      shapeFile = \"\\\\a.p3d\";\r\n   };\r\n"
                          "[Y]   class B: Y\r\n   {\r\n      shapeFile = \"\\\\a.p3d\";\r\n   };\r\n"
                          "};\r\n");
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(block.copies.size(), 1U);
}

/// The part of a vehicle's block between its outer braces. A "*" behind a line of the tree ticks it; the values are
/// "v1" for node 1 and so on.
std::string vehicleBody(std::string_view lines)
{
    KeywordTree tree;
    std::vector<bool> ticked;
    std::vector<VehicleProperty> properties(1);
    std::string plain;
    for (const std::string_view line : dataLines(lines)) {
        ticked.push_back(line.ends_with('*'));
        plain.append(line.substr(0, line.find('*'))) += '\r';
        properties.push_back({"", "v" + std::to_string(ticked.size())});
    }
    addTreeLines(plain, tree);
    const std::string text = vehicleBlock({"T", "B", "[declared]", tree, ticked, properties});
    const std::string head = "\r\n\r\nclass CfgVehicles\r\n{\r\n[declared]   class T: B\r\n   {\r\n";
    const std::string tail = "   };\r\n};";
    EXPECT_TRUE(text.starts_with(head) && text.ends_with(tail)) << text;
    return text.substr(head.size(), text.size() - head.size() - tail.size());
}

TEST(VehicleBlockText, TickedNodesBecomePropertiesAndNestedClasses)
{
    const std::pair<const char*, const char*> cases[] = {
        // A property at a group's level ends the group; the root is never written.
        {"V*\r   a*\r   G*\r      b*\r   c*\r",
         "      a = v2;\n      class G\n      {\n         b = v4;\n      };\n"
         "      c = v5;\n"},
        // A group of which nothing is ticked is empty; an unticked group ends the one before it and hides nothing.
        {"V\r   G*\r      a\r   H\r      b*\r", "      class G\n      {\n      };\n         b = v5;\n"},
        // Groups in groups, open up to the end.
        {"V\r   G*\r      H*\r         a*\r", "      class G\n      {\n         class H\n         {\n"
                                              "            a = v4;\n         };\n      };\n"},
        {"V\r   G*\r      H*\r         a*\r   b*\r", "      class G\n      {\n         class H\n         {\n"
                                                     "            a = v4;\n         };\n      };\n      b = v5;\n"},
        // A second heading is a property, with children too.
        {"V\rW*\r   a*\r", "   W = v2;\n      a = v3;\n"},
        // A digit in front of a caption reads as part of the level.
        {"V\r   2nd*\r", "                                       2nd = v2;\n"},
    };
    for (const auto& [lines, body] : cases)
        EXPECT_EQ(vehicleBody(lines), withCrLf(body)) << lines;
}

TEST(FaceBlockText, KindsSayHowValuesAreWrittenAndPicturesAreCopiedWhateverIsTicked)
{
    const std::vector<ListEntry> kinds = {{"P", 0, ""}, {"T", 2, ""}, {"W", 1, ""}};
    const std::vector<FaceRecord> faces = {
        {{used("Red \"head\""), used(R"(C:\pics\head1.jpg)"), {"5", false}}, "MyHead"},
        {{{}, {"/p/unticked.jpg", false}, {}}, "Out"},
        {{used(""), used("bare.jpg"), used("{1, 2}")}, "Face 3"},
    };
    EXPECT_EQ(faceBlock(kinds, faces, {true, false, true}),
              "\r\nclass CfgFaces\r\n{\r\n"
              "   class MyHead\r\n   {\r\n      P = \"Red \"head\"\";\r\n      T = \"head1.jpg\";\r\n   };\r\n"
              "   class Face 3\r\n   {\r\n      P = \"\";\r\n      T = \"\";\r\n      W = {1, 2};\r\n   };\r\n"
              "};\r\n");
    EXPECT_EQ(facePictures(kinds, faces),
              (std::vector<FileCopy>{
                  {R"(C:\pics\head1.jpg)", "head1.jpg"}, {"/p/unticked.jpg", "unticked.jpg"}, {"bare.jpg", ""}}));
}

} // namespace

} // namespace kitwright
