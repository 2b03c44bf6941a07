// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/colouring.h"
#include "bench.h"
#include "platform/qt_file_system.h"
#include "text/windows_1250.h"

namespace kitwright::bench {

const KeywordList& keywords()
{
    static const KeywordList shipped = [] {
        QtFileSystem files;
        const TextFiles texts(files, windows1250());
        const std::string folder = KITWRIGHT_TOP "/data/Bfdata/kitwright/";
        KeywordList list;
        NactiPrikazyConfig(texts, folder + "configclass.dat", KeywordClass::ClassName, list);
        NactiPrikazyConfig(texts, folder + "configcommands.dat", KeywordClass::ConfigCommand, list);
        for (const std::string_view word : {"#define", "class", "CfgPatches"})
            list.add(word, KeywordClass::CLanguageWord);
        return list;
    }();
    return shipped;
}

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

std::string misspelt(std::string text)
{
    const std::string styles = colourText(text, keywords(), {}).styles.entries;
    const auto isKeyword = [&](std::size_t i) { return styles[i] >= '\1' && styles[i] <= '\3'; };
    int count = 0;
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (isKeyword(i) && !isKeyword(i - 1) && ++count % 3 == 0)
            text[i] = static_cast<char>(text[i] ^ 0x20);
    }
    return text;
}

std::string denseConfig(std::size_t bytes)
{
    std::string text;
    for (int number = 0; text.size() < bytes; number = (number + 7919) % keywords().count()) {
        const std::string_view word = keywords().textAt(number);
        if (keywords().textAt(keywords().find(word)) == word && word.find(' ') == std::string_view::npos)
            text.append(word).append(" = 1;\r\n");
    }
    return text;
}

} // namespace kitwright::bench
