// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/wizard_commands.h"

#include "services/class_declarations.h"
#include "services/patch_list.h"
#include "services/paths.h"
#include "wizards/addon_copy.h"
#include "wizards/class_block.h"
#include "wizards/face_block.h"
#include "wizards/vehicle_block.h"

#include <span>
#include <unordered_map>

namespace kitwright {

namespace {

/// Saves the document until it has a path; the author cannot get round choosing one.
void saveUntilThereIsAPath(Context& context)
{
    while (context.state.CurrentFile.empty())
        context.host->UlozAddon();
}

void askPatchClassName(Context& context)
{
    context.state.PatchClassName = context.dialogs.askText(context.text(UiText::AskPatchClassName));
}

void askPatchClassNameIfNone(Context& context)
{
    if (context.state.PatchClassName.empty())
        askPatchClassName(context);
}

/// Has the open document saved under a path for the new add-on. False when it did not reach the disk: its text must
/// then stay in the editor.
bool chooseNewPath(Context& context)
{
    context.state.CurrentFile.clear();
    bool saved = false;
    while (context.state.CurrentFile.empty())
        saved = context.host->UlozAddon();
    return saved;
}

void startNewAddon(Context& context)
{
    context.host->configedit().setText("");
    askPatchClassNameIfNone(context);
    context.host->VlozText(context.state.PatchClassName);
}

/// What the document can hold of a text.
std::string kept(const Context& context, std::string text)
{
    const CodePage& codePage = context.texts.codePage();
    return codePage.holds(text) ? std::move(text) : codePage.keepable(text);
}

void registerClasses(Context& context, std::string_view list, std::vector<std::string> names)
{
    for (std::string& name : names)
        name = kept(context, std::move(name));
    AddToPatchList(context.host->configedit(), list, std::span<const std::string>(names));
}

/// Appends in one piece, so that it costs one edit, and has the whole document coloured.
void append(Context& context, std::string block)
{
    RichTextBox& editor = context.host->configedit();
    editor.replaceRange(editor.length(), 0, kept(context, std::move(block)));
    context.host->Uprav2();
}

/// Gives the declarations of a base class, each looked up in the class tree once.
auto declarationsFrom(const KeywordTree& classes)
{
    return [&classes, known = std::unordered_map<std::string, std::string>()](const std::string& name) mutable {
        const auto [found, isNew] = known.try_emplace(name);
        if (isNew)
            found->second = baseClassBlock(classes, name);
        return found->second;
    };
}

ClassBlock blockOf(Context& context, const ClassOrder& order)
{
    ClassBlockInput input;
    input.blockName = order.blockName;
    input.catalogue = order.catalogue;
    input.classes = order.classes;
    input.PatchClassName = context.state.PatchClassName;
    input.fileExists = [&context](const std::string& path) { return context.files.fileExists(path); };
    if (order.declareBases)
        input.declarations = declarationsFrom(context.host->classes());
    return classBlock(input);
}

} // namespace

Failures writeClasses(Context& context, const ClassOrder& order)
{
    if (order.target == AddonTarget::NewAddon && !chooseNewPath(context))
        return {}; // The save has told why.
    std::vector<FileCopy> copies;
    {
        const DocumentChange change(*context.host);
        if (order.target == AddonTarget::NewAddon)
            startNewAddon(context);
        if (!order.patchList.empty())
            registerClasses(context, order.patchList, tickedNames(order.classes));
        askPatchClassNameIfNone(context);
        ClassBlock block = blockOf(context, order);
        append(context, std::move(block.text));
        copies = std::move(block.copies);
    }
    // The save comes after the block, so that no half-written document reaches the disk.
    if (!copies.empty() && context.state.CurrentFile.empty())
        context.host->UlozAddon();
    return copyIntoAddon(context.files, context.state.CurrentFile, copies);
}

Failures writeVehicle(Context& context, const VehicleOrder& order)
{
    if (order.target == AddonTarget::NewAddon && !chooseNewPath(context))
        return {}; // The save has told why.
    const DocumentChange change(*context.host);
    if (order.target == AddonTarget::NewAddon)
        startNewAddon(context);
    askPatchClassNameIfNone(context);
    registerClasses(context, "UNITS[]", {order.name});
    const std::string declarations =
        order.declareBase ? baseClassBlock(context.host->classes(), order.baseClass) : std::string();
    append(context, vehicleBlock({order.name, order.baseClass, declarations, order.tree, order.properties}));
    return {};
}

ModelValue modelValue(Context& context, const std::string& path)
{
    const std::string fileName = FileNameOf(path);
    if (!context.files.fileExists(path))
        return {"\"\\data3D\\" + fileName + '"', {}};

    Failures failures;
    if (context.dialogs.askYesNo(context.text(UiText::AskCopyModel))) {
        saveUntilThereIsAPath(context);
        failures = copyIntoAddon(context.files, context.state.CurrentFile, {{path, fileName}});
    }
    askPatchClassNameIfNone(context);
    return {"\"\\" + context.state.PatchClassName + "\\" + fileName + '"', std::move(failures)};
}

Failures writeFaces(Context& context, const FaceOrder& order)
{
    {
        const DocumentChange change(*context.host);
        if (order.target == AddonTarget::NewAddon) {
            context.state.CurrentFile.clear();
            context.host->configedit().setText("");
            askPatchClassName(context);
            context.host->VlozText(context.state.PatchClassName);
        }
        append(context, faceBlock(order.catalogue, order.faces));
    }
    saveUntilThereIsAPath(context);
    return CopyFaceFiles(context.files, context.state.CurrentFile, order.catalogue, order.faces);
}

} // namespace kitwright
