// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/sample.h"

#include "platform/qt_file_system.h"
#include "text/windows_1250.h"

namespace kitwright::bench {

std::string sampleConfig(std::size_t bytes)
{
    std::string text = "class CfgPatches\r\n{\r\n  class Bench\r\n  {\r\n     units[]={};\r\n     weapons[]={};\r\n"
                       "     requiredVersion=1.75;\r\n   };\r\n};\r\n";
    for (int number = 1; text.size() < bytes; ++number) {
        const std::string name = "Bench" + std::to_string(number);
        text += "\r\nclass CfgVehicles\r\n{\r\n   // Vozidlo číslo " + std::to_string(number)
              + ", příklad poznámky s háčky\r\n   class " + name
              + ": Car\r\n   {\r\n"
                "      scope = 2 ;\r\n      side = 1 ;\r\n      displayName = \"Těžké vozidlo "
              + name
              + "\";\r\n"
                "      model = \"\\Bench\\"
              + name
              + ".p3d\";\r\n      maxSpeed = 90 ; // km/h\r\n"
                "      armor = 50 ;\r\n      weapons[] = {\"M16\", \"HandGrenade\"};\r\n"
                "      class Turret\r\n      {\r\n         gunAxis = \"osa hlavne\";\r\n"
                "         minElev = -5 ;\r\n         maxElev = 60 ;\r\n      };\r\n   };\r\n};\r\n";
    }
    return text;
}

KeywordList shippedKeywords()
{
    QtFileSystem files;
    const TextFiles texts(files, windows1250());
    const std::string folder = KITWRIGHT_TOP "/data/Bfdata/kitwright/";
    KeywordList list;
    NactiPrikazyConfig(texts, folder + "configclass.dat", KeywordClass::ClassName, list);
    NactiPrikazyConfig(texts, folder + "configcommands.dat", KeywordClass::ConfigCommand, list);
    for (const std::string_view word : {"#define", "class", "CfgPatches"})
        list.add(word, KeywordClass::CLanguageWord);
    return list;
}

} // namespace kitwright::bench
