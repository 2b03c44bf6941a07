// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/face_block.h"

#include "support/blocks.h"
#include "support/input.h"
#include "support/target.h"

namespace kitwright::fuzzing {

/// The pieces are faces: name, and the values of the catalogue.
void tryInput(std::string_view bytes)
{
    const std::vector<ListEntry> catalogue = {{"a", 0, ""}, {"b", 2, ""}, {"c", 1, ""}};
    std::vector<FaceRecord> faces;
    std::vector<FaceRecord> twins;
    for (Pieces pieces(bytes); pieces.areLeft();) {
        const std::string name = pieces.text();
        faces.push_back({takeSettings(pieces, catalogue.size()), name});
        twins.push_back({harmless(faces.back().Properties), harmless(name)});
        namesPicture(name);
    }
    const std::vector<bool> ticked(faces.size(), true);
    const std::string twin = faceBlock(catalogue, twins, ticked);
    checkShape(twin);
    checkTwin(faceBlock(catalogue, faces, ticked), twin);
    checkCopies(facePictures(catalogue, faces));
}

} // namespace kitwright::fuzzing
