// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "text/list_file.h"
#include "wizards/addon_copy.h"
#include "wizards/class_record.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kitwright {

/// The block with the ticked faces, each with its ticked properties. Texts (kind 0) and the file names of pictures
/// (kind 2) are put in double quotes, any other value is written as it stands; nothing is escaped.
std::string faceBlock(std::span<const ListEntry> catalogue, std::span<const FaceRecord> faces);

/// The pictures that the faces name, each once; ticks do not matter.
std::vector<FileCopy> facePictures(std::span<const ListEntry> catalogue, std::span<const FaceRecord> faces);

/// Copies the pictures that the faces name into the folder of the document at `CurrentFile`; says in one line each
/// what could not be copied.
std::vector<std::string> CopyFaceFiles(FileSystem& files, std::string_view CurrentFile,
                                       std::span<const ListEntry> catalogue, std::span<const FaceRecord> faces);

/// True when a value is to be tried as a picture: it contains ".jpg" in any letter case.
bool namesPicture(std::string_view value);

} // namespace kitwright
