// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "packer/other_addon.h"
#include "packer/packer_request.h"

#include <QDialog>
#include <QThreadPool>

#include <atomic>
#include <functional>
#include <memory>

namespace Ui {
class PackerWindow;
}

namespace kitwright {

/// What the packer's window works with. Tools and checks are called in a thread of their own, one at a time.
struct PackerSurroundings {
    PackTools tools;

    /// The errors that a check of the document finds, one line each.
    std::function<std::vector<std::string>(const std::string& document)> errorsOf;

    /// Shows a folder in the desktop's file manager.
    std::function<Failure(const std::string& folder)> showFolder;
};

/// Packs one add-on: says what is packed, shows how far it is, what was left out and where the archive is, or why there
/// is none. Asks before it packs a config with errors, or over another add-on's archive. Closing it stops the work.
class PackerWindow final : public QDialog {
public:
    /// Without a request it says how the packer is used. The surroundings must outlive the window.
    PackerWindow(const PackerSurroundings& surroundings, const std::optional<PackerRequest>& request);
    ~PackerWindow() override;

    /// Begins to work.
    void start();

    /// `Accepted` when the archive was made.
    void done(int result) override;

private:
    template <class Work, class Next>
    void work(const Work& work, const Next& next);

    void lookForErrors();
    void lookForOtherAddon();
    void pack();
    void ask(const QString& question, void (PackerWindow::*next)());
    void showProgress(std::uint64_t done, std::uint64_t total);
    void showResult(const Outcome<PackResult>& result);
    void showFolder();

    const PackerSurroundings& m_surroundings;
    PackerRequest m_request;
    std::unique_ptr<Ui::PackerWindow> m_ui;
    void (PackerWindow::*m_anyway)() = nullptr; ///< What is done when the author does not mind.
    std::string m_madeIn;                       ///< The folder of the archive, once there is one.
    int m_shownShare = -1;                      ///< Of a thousand; of the working thread.
    std::atomic<bool> m_isClosing = false;
    QThreadPool m_thread; ///< Of one thread; ends before what it works with.
};

} // namespace kitwright
