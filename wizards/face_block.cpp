// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/face_block.h"

#include "services/paths.h"
#include "text/find_text.h"
#include "wizards/catalogue.h"

#include <algorithm>

namespace kitwright {

namespace {

std::string written(const ListEntry& property, const std::string& value)
{
    constexpr std::int16_t textKind = 0;
    if (property.kind == textKind)
        return '"' + value + '"';
    return property.kind == fileKind ? '"' + FileNameOf(value) + '"' : value;
}

} // namespace

std::string faceBlock(std::span<const ListEntry> catalogue, std::span<const FaceRecord> faces)
{
    std::string text = "\r\nclass CfgFaces\r\n{\r\n";
    for (const FaceRecord& face : faces) {
        if (!face.ticked)
            continue;
        text.append("   class ").append(face.Name).append("\r\n   {\r\n");
        const std::vector<PropertySetting>& properties = face.Properties;
        for (std::size_t j = 0; j < std::min(properties.size(), catalogue.size()); ++j) {
            if (properties[j].Used)
                text += "      " + catalogue[j].text + " = " + written(catalogue[j], properties[j].Value) + ";\r\n";
        }
        text += "   };\r\n";
    }
    return text + "};\r\n";
}

std::vector<FileCopy> facePictures(std::span<const ListEntry> catalogue, std::span<const FaceRecord> faces)
{
    CopyPlan plan;
    for (const FaceRecord& face : faces) {
        for (std::size_t j = 0; j < std::min(face.Properties.size(), catalogue.size()); ++j) {
            const std::string& value = face.Properties[j].Value;
            if (catalogue[j].kind == fileKind && !value.empty())
                plan.add(value);
        }
    }
    return plan.copies();
}

std::vector<std::string> CopyFaceFiles(FileSystem& files, std::string_view CurrentFile,
                                       std::span<const ListEntry> catalogue, std::span<const FaceRecord> faces)
{
    return copyIntoAddon(files, CurrentFile, facePictures(catalogue, faces));
}

bool namesPicture(std::string_view value)
{
    return findIgnoringCase(value, ".JPG") != std::string_view::npos;
}

} // namespace kitwright
