// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/config_scanner.h"

#include <gtest/gtest.h>

namespace kitwright {

TEST(PatchClassName, IsTheFirstClassInsideTheBlock)
{
    const std::pair<std::string, std::string> cases[] = {
        {"class CfgPatches\r\n{\r\n   class MyAddon\r\n   {\r\n   };\r\n   class B\r\n{};};", "MyAddon"},
        {"class CfgPatches { class A { units[]={}; }; };", "A"},
        {"class CfgPatches{ class A{ units[]={}; }; };", "A{"},
        {"class CfgPatches { class A: B { }; };", "A:"},
        {"CLASS CFGPATCHES\n{\n CLASS A\n", "A"},
        {"class CfgPatches{class A {}; };", "before"},
        {"class CfgPatches\r\n{\r\n\tclass A\r\n{};\r\n};\r\nclass B \r\n", "before"},
        {"class CfgPatches\r\n{ class A", "before"},
        {"class CfgPatches { units[]={}; };\r\nclass B {};", "before"},
        {"class CfgPatches { subclass A classes B }; class C {};", "before"},
        {"// CfgPatches\r\nclass CfgWeapons {\r\n class Gun {}; };", "Gun"},
        {"CfgPatches class A class B { class C };", "C"},
        {"class CfgPatches { class  A };", ""},
        {"12345678 class A { class B };", "B"},
        {"12345678class A { };", "A"},
        {"class A \r\n", "before"}, // The scan starts behind it.
        {"", "before"},
        {"CfgPatches } { class A {", "A"}};
    for (const auto& [text, found] : cases) {
        std::string patchClass = "before";
        ReadPatchClassName(text, patchClass);
        EXPECT_EQ(patchClass, found) << text;
    }
}

} // namespace kitwright
