// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace kitwright {

/// A text of the user interface. Its number is that of its line in a language file, from 0.
enum class UiText : std::uint8_t {
    MainWindowTitle = 0,
    FileMenu = 1,
    FileOpen = 2,
    FileNew = 3,
    FileSave = 4,
    FileSaveAs = 5,
    Exit = 6,
    WizardsMenu = 7,
    WizardsFace = 8,
    WizardsWeapon = 9,
    WizardsAmmo = 10,
    WizardsVehicle = 11,
    SettingsMenu = 12,
    SettingsEditor = 13,
    SettingsLanguage = 14,
    ClassTree = 15,
    CommandTree = 16,
    MakePbo = 17,
    WeaponWizardTitle = 18,
    IntoNewAddon = 19,
    IntoCurrentAddon = 20,
    Add = 21,
    Remove = 22,
    RemoveAll = 23,
    Name = 24,
    BaseClass = 25,
    DeclareAncestors = 26,
    Properties = 27,
    Cancel = 28,
    Ok = 29,
    WaitTitle = 30,
    WaitNotice = 31,
    AmmoWizardTitle = 32,
    StringtableTitle = 33,
    StringtableKey = 34,
    StringtableSave = 35,
    SettingsTitle = 36,
    ColoursAndStyles = 37,
    CKeywords = 38,
    ConfigCommands = 39,
    ClassNames = 40,
    Comments = 41,
    PboFolder = 42,
    InsertBaseText = 43,
    DeclareFromRoot = 44,
    KeywordColouringOff = 45,
    Bold = 46,
    Italic = 47,
    FolderChooserTitle = 48,
    LanguageChooserTitle = 49,
    FaceWizardTitle = 50,
    Value = 51,
    IndexTitle = 52,
    IndexSearch = 53,
    VehicleWizardTitle = 54,
    ParentNode = 55,
    NewWeapon = 56,
    NewAmmo = 57,
    NewFace = 58,
    AskPatchClassName = 59,
    SaveAsTitle = 60,
    SaveBeforePacking = 61,
    KindConfigCommand = 62,
    KindCKeyword = 63,
    KindClassName = 64,
    SaveAddonTitle = 65,
    RenameReason = 66,
    RenameChosenName = 67,
    RenameQuestion = 68,
    AskRequiredVersion = 69,
    About = 70,
    AboutProgram = 71,
    ColourMakerTitle = 72,
    MakeColour = 73,
    AskCopyModel = 74,
    ClearAll = 75,
};

/// The texts of a language, by their numbers.
using UiTexts = std::array<std::string, 76>;

} // namespace kitwright
