// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pack/archive_names.h"

#include "pack/reasons.h"
#include "text/letter_case.h"
#include "text/utf8.h"

#include <algorithm>
#include <array>

namespace kitwright {

namespace {

constexpr char separator = '\\';

/// True for the name of a device, which some systems see in any folder and with any extension.
bool isDevice(std::string_view part)
{
    constexpr std::array<std::string_view, 4> devices = {"CON", "PRN", "AUX", "NUL"};
    std::string_view stem = part.substr(0, part.find('.'));
    stem = stem.substr(0, stem.find_last_not_of(' ') + 1);
    const std::string name = upperCased(stem);
    if (std::find(devices.begin(), devices.end(), name) != devices.end())
        return true;
    return name.size() == 4 && (name.starts_with("COM") || name.starts_with("LPT")) && name[3] >= '0'
        && name[3] <= '9';
}

const char* characterFault(std::string_view name)
{
    for (std::size_t i = 0; i < name.size();) {
        const Utf8Character character = utf8At(name, i);
        if (!character.valid)
            return why::lacksCharacters;
        const char32_t codePoint = character.codePoint;
        if (codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0))
            return why::hasControl;
        if (codePoint == U'/')
            return why::hasSeparator;
        if (codePoint == U':')
            return why::namesADrive;
        if (std::u32string_view(U"<>\"|?*").find(codePoint) != std::u32string_view::npos)
            return why::hasForbidden;
        i += character.length;
    }
    return nullptr;
}

const char* partFault(std::string_view part)
{
    constexpr std::size_t longestPart = 255; // Bytes that file systems take.
    if (part.empty())
        return why::hasEmptyPart;
    if (part == "..")
        return why::leadsUp;
    if (part.back() == '.' || part.back() == ' ')
        return why::endsBadly;
    if (part.size() > longestPart)
        return why::isTooLong;
    return isDevice(part) ? why::namesADevice : nullptr;
}

} // namespace

const char* nameFault(std::string_view name)
{
    if (name.starts_with(separator) || name.starts_with('/'))
        return why::isAbsolute;
    if (const char* fault = characterFault(name))
        return fault;
    for (std::size_t start = 0; start <= name.size();) {
        const std::size_t end = std::min(name.find(separator, start), name.size());
        if (const char* fault = partFault(name.substr(start, end - start)))
            return fault;
        start = end + 1;
    }
    return nullptr;
}

std::string foldedName(std::string_view name)
{
    constexpr std::string_view sharpS = "\u00DF";
    constexpr std::string_view softHyphen = "\u00AD";
    std::string folded;
    const std::string upper = upperCased(name);
    for (std::size_t i = 0; i < upper.size();) {
        const std::string_view character = std::string_view(upper).substr(i, utf8At(upper, i).length);
        i += character.size();
        if (character == sharpS)
            folded += "ss";
        else if (character.size() == 1 && character[0] >= 'A' && character[0] <= 'Z')
            folded += static_cast<char>(character[0] - 'A' + 'a');
        else if (character != softHyphen)
            folded += character;
    }
    return folded;
}

const char* NameSet::add(std::string_view name)
{
    const std::string folded = foldedName(name);
    const auto [place, isNew] = m_known.emplace(folded, Kind::File);
    if (!isNew)
        return place->second == Kind::File ? why::isTwin : why::isFileAndFolder;
    for (std::size_t end = folded.rfind(separator); end != std::string::npos && end > 0;
         end = folded.rfind(separator, end - 1)) {
        const auto [folder, isNewFolder] = m_known.emplace(folded.substr(0, end), Kind::Folder);
        if (folder->second == Kind::File)
            return why::isFileAndFolder;
        if (!isNewFolder)
            break;
    }
    return nullptr;
}

} // namespace kitwright
