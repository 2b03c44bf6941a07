// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/starting_text.h"

namespace kitwright {

std::string startingText(std::string_view Jmeno, std::string_view version)
{
    std::string text = "//Nejake zakladni definice / some basic defines\r\n"
                       "#define TEast 0\r\n"
                       "#define TWest 1\r\n"
                       "#define TGuerrila 2\r\n"
                       "#define TCivilian 3\r\n"
                       "#define TSideUnknown 4\r\n"
                       "#define TEnemy 5\r\n"
                       "#define TFriendly 6\r\n"
                       "#define TLogic 7\r\n"
                       "\r\n"
                       "//pravda nebo lez / true or lie\r\n"
                       "#define true 1\r\n"
                       "#define false 0\r\n"
                       "\r\n"
                       "//viditelnost / visibility\r\n"
                       "#define private 0\r\n"
                       "#define protected 1\r\n"
                       "#define public 1\r\n"
                       "\r\n"
                       "class CfgPatches\r\n"
                       "{\r\n"
                       "  class ";
    text.append(Jmeno);
    text += "\r\n"
            "  {\r\n"
            "     units[]={};\r\n"
            "     weapons[]={};\r\n"
            "     worlds[]={};\r\n"
            "     requiredVersion=";
    text.append(version);
    text += ";\r\n"
            "   };\r\n"
            "};\r\n";
    return text;
}

} // namespace kitwright
