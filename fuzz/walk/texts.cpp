// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "texts.h"

#include <array>

namespace kitwright::walking {

namespace {

constexpr std::array words = {
    "class",       "CfgPatches", "units[]",     "weapons[]", "CLASS", "cfgweapons", "#define", "model = \"gun\";",
    "requiredver", "{",          "}",           "};",        "//",    "/*",         "*/",      "\"",
    "scope = 2;",  "magazines",  "displayName", "= 0.5;",    "[",     "]",          "(",       ")",
    "Cfg",         "příliš",     "žluťoučký",   "kůň",       "ÚPĚL",  "ďábel",      "ß",       "µ",
    "ŕľ",
};

/// Beyond the code page, or at its edge: no-break space, quotes, Greek, Cyrillic, emoji, a letter in two parts.
constexpr std::array strangers = {
    "\u00A0", "\u201E\u201C", "\u03A9", "\u0436", "\U0001F600", "e\u0301", "\u2026", "\u2028", "\uFEFF", "\u00FF",
    "\u0131", "\u2014",       "\u00B5", "\u20AC", "\uFFFD",     "\u200B",  "\x01",   "\x1B",   "\x7F",   "\t",
};

constexpr std::array lineEnds = {"\r\n", "\n", "\r", "\n\r", "\u2029", "\r\n\r\n"};

constexpr std::array names = {
    "Gun", "tank_1", "Face 1", "1.85", "CfgPatches", "M16", "kůň", "a", "Gun", "tank",
};

constexpr std::array hostileNames = {
    "quo\"te",
    "..",
    "../../up",
    "new\nline",
    "\x02"
    "control",
    "back\\slash",
    "sla/sh",
    " ",
    "}; class x {",
    "\U0001F600",
    "a;b",
    "*",
    "%s%n",
    ".",
    "C:\\x",
    "-",
    "\u010Desk\u00FD n\u00E1zev",
    "a\tb",
    "",
};

constexpr std::array values = {
    "1", "0.5", "-3", "{1,1,1,1}", "\"text\"", "{}", "",
};

constexpr std::array models = {
    "/models/gun.p3d",
    "/models/a b.p3d",
    "\\models\\gun.p3d",
    "/models/Žluťásek.p3d",
    "/models/gone.p3d",
    "/pictures/face.jpg",
    "/pictures/FACE.JPG",
    "/pictures/broken.jpg",
    "/pictures/gone.jpg",
    "/models/",
    "gun.p3d",
    "/models/..",
    "/others/gun.p3d",
    "/others/config.cpp",
    "/others/Stringtable.csv",
};

constexpr std::array documents = {
    "/addons/tank/config.cpp", "/addons/gun/config.cpp",   "/addons/lf/config.cpp",
    "/addons/cr/config.cpp",   "/addons/bytes/config.cpp", "/addons/empty/config.cpp",
    "/addons/long/config.cpp", "/addons/table/config.cpp", "/addons/gone/config.cpp",
    "/addons/tank/",           "/read-only/config.cpp",
};

constexpr std::array saves = {
    "/addons/tank/config.cpp",  "/addons/gun/CONFIG.CPP",    "/addons/new/config.cpp", "/addons/new/mine.cpp",
    "/addons/table/config.cpp", "\\addons\\gun\\config.cpp", "/addons/lf/Config.cpp",  "/addons/new/gun.p3d.cpp",
};

/// All of them whole paths: a file dialog gives no others.
constexpr std::array hostileSaves = {
    "/addons/quo\"te/config.cpp",
    "/addons/tank/../gun/config.cpp",
    "/addons/new\nline/config.cpp",
    "/addons/\x01"
    "control/config.cpp",
    "/addons/back\\slash.cpp",
    "/addons/\U0001F600/\u017Elu\u0165.cpp",
    "/read-only/config.cpp",
    "/full/config.cpp",
    "/addons/",
    "",
    "/",
    "/config.cpp",
    "/addons/tank/Stringtable.csv",
    "/addons/table/stringtable.CSV",
};

std::string longRun(Chance& chance)
{
    constexpr std::size_t longest = 3000;
    return std::string(chance.below(longest), chance.percent(50) ? 'x' : ' ');
}

} // namespace

std::string typedText(Chance& chance)
{
    std::string text;
    for (int i = chance.between(1, 4); i > 0; --i) {
        if (chance.percent(12))
            text += chance.of(strangers);
        else
            text += std::string(chance.of(words)) + (chance.percent(70) ? " " : "");
    }
    return text;
}

std::string pastedText(Chance& chance)
{
    std::string text;
    for (int i = chance.between(1, 8); i > 0; --i)
        text += typedText(chance) + chance.of(lineEnds);
    return chance.percent(5) ? text + longRun(chance) : text;
}

std::string nameText(Chance& chance)
{
    if (chance.percent(2))
        return longRun(chance);
    return chance.percent(30) ? chance.of(hostileNames) : chance.of(names);
}

std::string valueText(Chance& chance)
{
    if (chance.percent(15))
        return nameText(chance);
    return chance.percent(40) ? chance.of(models) : chance.of(values);
}

std::string savePath(Chance& chance)
{
    return chance.percent(25) ? chance.of(hostileSaves) : chance.of(saves);
}

std::string openPath(Chance& chance, bool document)
{
    if (!document)
        return chance.of(models);
    return chance.percent(75) ? chance.of(documents) : savePath(chance);
}

} // namespace kitwright::walking
