// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/application.h"

#include "app/index_window.h"
#include "app/log.h"
#include "app/settings_dialog.h"
#include "app/wait_window.h"
#include "lang/apply_language.h"
#include "lang/language_chooser.h"
#include "lang/language_folder.h"
#include "platform/qt_text.h"
#include "platform/report.h"
#include "services/folder_chooser.h"
#include "services/paths.h"
#include "stringtable/stringtable_window.h"
#include "tools/about_window.h"
#include "tools/colour_maker.h"
#include "wizards/class_wizard.h"
#include "wizards/face_wizard.h"
#include "wizards/vehicle_wizard.h"

#include <QCoreApplication>

/// The icons lie in a static library, whose resources are only there once they are asked for.
static void initIcons()
{
    Q_INIT_RESOURCE(icons);
}

namespace kitwright {

namespace {

constexpr const char* classFile = "/Bfdata/kitwright/configclass.dat";
constexpr const char* commandFile = "/Bfdata/kitwright/configcommands.dat";
constexpr const char* vehicleFile = "/Bfdata/kitwright/kitwrightvehicles.dat";

} // namespace

Application::Application(const Desktop& desktop, const std::string& programFolder)
    : m_desktop((initIcons(), desktop)),
      m_main(m_desktop, m_state, m_keywords, *this)
{
    m_state.programFolder = programFolder;
}

Application::~Application() = default;

void Application::start()
{
    loadClasses();
    loadCommands();
    m_main.showTrees(m_classTree, m_commandTree);
    loadSettings();
    for (const std::string_view word : {"#define", "class", "CfgPatches"})
        m_keywords.add(word, KeywordClass::CLanguageWord);
    windowAs<frmrejstrik2>("frmrejstrik2").showKeywords();
    loadVehicles();
    m_main.startColouring();
}

bool Application::existsOrReport(const std::string& path)
{
    const bool exists = m_desktop.files.fileExists(path);
    if (!exists)
        m_desktop.dialogs.showMessage("Missing: " + path + "\r\n");
    return exists;
}

void Application::loadClasses()
{
    const std::string path = m_state.programFolder + classFile;
    if (!existsOrReport(path))
        return;
    report(lcApp(), "loading the classes", NactiTridy(m_desktop.texts, path, m_classTree));
    report(lcApp(), "loading the class names",
           NactiPrikazyConfig(m_desktop.texts, path, KeywordClass::ClassName, m_keywords));
}

void Application::loadCommands()
{
    const std::string path = m_state.programFolder + commandFile;
    // Tree and keywords ask for the file on their own, so a missing one is told twice.
    if (existsOrReport(path))
        report(lcApp(), "loading the commands", NactiTridy(m_desktop.texts, path, m_commandTree));
    if (existsOrReport(path)) {
        report(lcApp(), "loading the command keywords",
               NactiPrikazyConfig(m_desktop.texts, path, KeywordClass::ConfigCommand, m_keywords));
    }
}

void Application::loadSettings()
{
    m_state.Settings = EditorSettings();
    if (m_desktop.files.fileExists(settingsPath())) {
        const Failure failure =
            LoadSettings(m_desktop.files, m_desktop.texts.codePage(), settingsPath(), m_state.Settings);
        report(lcApp(), "reading the settings", failure);
        if (failure)
            m_insteadOfUnread = m_state.Settings;
        findLanguage();
        // Without a chosen language the designer's captions stand.
        if (!m_state.Settings.LanguageFile.empty())
            applyLanguage(m_state.Settings.LanguageFile);
        return;
    }
    saveSettings();
    m_state.Settings.PboFolder = m_state.programFolder;
    showModal(u"Form7");
}

/// A program folder that was moved, or whose name the settings cannot hold, keeps the language that was chosen in it.
void Application::findLanguage()
{
    std::string& chosen = m_state.Settings.LanguageFile;
    const std::string own = m_main.context().inProgramFolder(languageFolder) + '/' + FileNameOf(chosen);
    if (!m_desktop.files.fileExists(chosen) && m_desktop.files.fileExists(own))
        chosen = own;
}

void Application::loadVehicles()
{
    auto& wizard = windowAs<frmvehikl>("frmvehikl");
    const std::string path = m_state.programFolder + vehicleFile;
    if (m_desktop.files.fileExists(path)) {
        KeywordTree tree;
        report(lcApp(), "loading the vehicle properties", NactiTridy(m_desktop.texts, path, tree));
        wizard.loadProperties(tree);
        wizard.NadeklarujPole();
    }
    wizard.loadBaseClasses();
}

void Application::applyLanguage(const std::string& path)
{
    ApplyLanguage(
        m_main.context(), [this](std::string_view name) { return window(name); }, path);
}

QWidget* Application::window(std::string_view name)
{
    if (fromQt(m_main.objectName()) == name)
        return &m_main;
    if (const auto known = m_windows.find(name); known != m_windows.end() && known->second)
        return known->second;
    QDialog* made = make(name);
    if (made)
        m_windows[std::string(name)] = made;
    return made;
}

/// Makes a window that does not exist yet, as a child of the main window.
QDialog* Application::make(std::string_view name)
{
    Context& context = m_main.context();
    if (name == "frmrejstrik2")
        return new frmrejstrik2(context, m_keywords, &m_main);
    if (name == "Form1")
        return new ClassWizard(weaponWizard, context, m_wizards.WeaponClasses, &m_main);
    if (name == "Form2")
        return new Form2(&m_main);
    if (name == "Form3")
        return new ClassWizard(ammoWizard, context, m_wizards.AmmoClasses, &m_main);
    if (name == "Form4")
        return new Form4(context, &m_main);
    if (name == "Form5")
        return new Form5(
            context, [this] { return chooseFolder(); }, &m_main);
    if (name == "Form6")
        return new Form6(context, &m_main);
    if (name == "Form7")
        return new Form7(
            context, [this](const std::string& path) { applyLanguage(path); }, &m_main);
    if (name == "Form8")
        return new Form8(&m_main);
    if (name == "Form9")
        return new Form9(context, &m_main);
    if (name == "frmfaceaddon")
        return new frmfaceaddon(context, m_wizards.FaceEntries, &m_main);
    if (name == "frmvehikl")
        return new frmvehikl(context, m_wizards.VehicleProperties, &m_main);
    return nullptr;
}

template <class Window>
Window& Application::windowAs(std::string_view name)
{
    return *static_cast<Window*>(window(name));
}

void Application::showModal(QStringView name)
{
    runModal(windowAs<QDialog>(fromQt(name.toString())));
}

/// Shows a window until it is closed. A click that was waiting while it closed arrives before its loop has ended, and
/// does nothing.
void Application::runModal(QDialog& dialog)
{
    if (!m_modal.insert(&dialog).second)
        return;
    dialog.exec();
    m_modal.erase(&dialog);
}

void Application::showBeside(QStringView name)
{
    auto& dialog = windowAs<QDialog>(fromQt(name.toString()));
    dialog.show();
    dialog.raise();
    dialog.activateWindow();
}

Form2& Application::waitWindow()
{
    return windowAs<Form2>("Form2");
}

void Application::readStringtable(const std::string& configPath)
{
    windowAs<Form4>("Form4").readTable(configPath);
}

void Application::WriteStringtable(const std::string& path)
{
    windowAs<Form4>("Form4").WriteStringtable(path);
}

std::string Application::chooseFolder()
{
    auto& chooser = windowAs<Form6>("Form6");
    runModal(chooser);
    return chooser.FolderPath;
}

/// A file that could not be read keeps what it holds, unless the author has set something since.
void Application::saveSettings()
{
    if (m_insteadOfUnread == m_state.Settings)
        return;
    report(lcApp(), "writing the settings",
           SaveSettings(m_desktop.files, m_desktop.texts.codePage(), settingsPath(), m_state.Settings));
}

void Application::UnloadAllWindows()
{
    for (const auto& [name, dialog] : m_windows) {
        if (dialog)
            dialog->hide();
    }
    m_main.close();
    QCoreApplication::exit(0);
}

} // namespace kitwright
