// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pictures.h"
#include "play.h"
#include "services/settings.h"
#include "text/windows_1250.h"

#include <fstream>
#include <iterator>

namespace kitwright::badinput {

namespace {

std::string shipped(const std::string& name)
{
    std::ifstream file(KITWRIGHT_TOP "/data/Bfdata/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

Flavour tree(const std::string& name)
{
    return {shipped(name), "* Root *\r\n", "   ", "", " ", Flavour::Nesting::Tree};
}

Flavour list(const std::string& name)
{
    return {shipped(name), "", "", ",1; help", ","};
}

std::string soundSettings()
{
    EditorSettings settings;
    settings.PboFolder = "/packed";
    settings.LanguageFile = "/nowhere/english.lng";
    return encodeSettings(settings, windows1250());
}

constexpr const char* soundTable = "LANGUAGE,English,Czech,German\r\n"
                                   "// a comment\r\n"
                                   "$STRM_NAME_A,Gun,Pu\x9Aka,\"Gewehr, gro\xDF\"\r\n"
                                   "$STRM_NAME_B,\"two\r\nlines\",,\r\n"
                                   "STR_OTHER,text,,\r\n";

} // namespace

const std::vector<Surface>& surfaces()
{
    static const std::string below = "program/Bfdata/kitwright/";
    static const std::vector<Surface> all = {
        {"document", "addon/config.cpp", {ordinaryDocument, "", "   class ", " ;", " ,;{}"}, useDocument},
        {"configclass", below + "configclass.dat", tree("kitwright/configclass.dat"), useClasses},
        {"configcommands", below + "configcommands.dat", tree("kitwright/configcommands.dat"), useCommands},
        {"weapons", below + "kitwrightweapon.dat", list("kitwright/kitwrightweapon.dat"), useWeapons},
        {"base-classes", below + "addweapons.dat", list("kitwright/addweapons.dat"), useBaseClasses},
        {"vehicles", below + "kitwrightvehicles.dat", tree("kitwright/kitwrightvehicles.dat"), useVehicles},
        {"faces", below + "Kitwrightface.dat", list("kitwright/Kitwrightface.dat"), useFaces},
        {"languages", below + "languages.dat", list("kitwright/languages.dat"), useLanguages},
        {"language-file", "program/Bfdata/languages/kitwright/bad.lng", list("languages/kitwright/cestina.lng"),
         useLanguage},
        {"settings", "program/Kitwright.cfg", {soundSettings(), "", "", "", ","}, useSettings},
        {"stringtable",
         "addon/Stringtable.csv",
         {soundTable, "LANGUAGE,English,Czech\r\n", "$STRM_", ",text,text", ",", Flavour::Nesting::Quotes},
         useStringtable},
        {"picture", "elsewhere/face.jpg", {soundPicture(), "", "", "", ","}, usePicture, {"addon/face.jpg"}},
        {"model",
         "elsewhere/gun.p3d",
         {"MLOD" + std::string(200, '\1') + "SP3X", "", "", "", ","},
         useModel,
         {"addon/gun.p3d"}},
    };
    return all;
}

} // namespace kitwright::badinput
