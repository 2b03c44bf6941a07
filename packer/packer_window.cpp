// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packer/packer_window.h"

#include "platform/qt_text.h"
#include "platform/shown_text.h"
#include "services/paths.h"
#include "ui_packer_window.h"

#include <QCoreApplication>
#include <QLocale>

namespace kitwright {

namespace {

constexpr int wholeShare = 1000; // The range of the progress bar.

/// A text of the packing logic in the user's language.
QString translated(const char* text)
{
    return QCoreApplication::translate("pack", text);
}

/// "subject: why" with the latter in the user's language where it is one of our own reasons.
QString translatedReason(const std::string& reason)
{
    const std::size_t colon = reason.rfind(": ");
    const std::size_t start = colon == std::string::npos ? 0 : colon + 2;
    return shownText(reason.substr(0, start)) + translated(reason.c_str() + start);
}

} // namespace

PackerWindow::PackerWindow(const PackerSurroundings& surroundings, const std::optional<PackerRequest>& request)
    : m_surroundings(surroundings),
      m_request(request.value_or(PackerRequest())),
      m_ui(std::make_unique<Ui::PackerWindow>())
{
    m_ui->setupUi(this);
    m_ui->cmdanyway->hide();
    m_ui->prgprogress->setRange(0, wholeShare);
    m_thread.setMaxThreadCount(1);
    connect(m_ui->cmdclose, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_ui->cmdfolder, &QPushButton::clicked, this, &PackerWindow::showFolder);
    connect(m_ui->cmdanyway, &QPushButton::clicked, this, [this] {
        m_ui->cmdanyway->hide();
        m_ui->lstfiles->clear();
        (this->*m_anyway)();
    });
    if (request) {
        m_ui->lblsource->setText(tr("Folder: %1").arg(shownText(m_request.folder)));
    }
}

PackerWindow::~PackerWindow()
{
    m_isClosing = true;
    m_thread.waitForDone();
}

void PackerWindow::start()
{
    if (!m_request.document.empty())
        return lookForErrors();
    m_ui->lblresult->setText(tr("This is the packer that \"Make Pbo\" in the editor starts. It was not told which "
                                "document to pack, or the document is not there."));
}

void PackerWindow::done(int result)
{
    m_isClosing = true;
    m_thread.waitForDone();
    QDialog::done(m_madeIn.empty() ? result : Accepted);
}

/// Does `work` in the other thread, and then hands what it gave to `next` in this one.
template <class Work, class Next>
void PackerWindow::work(const Work& work, const Next& next)
{
    m_thread.start([this, work, next] {
        auto result = work();
        QMetaObject::invokeMethod(
            this, [next, result = std::move(result)] { next(result); }, Qt::QueuedConnection);
    });
}

void PackerWindow::lookForErrors()
{
    m_ui->lblresult->setText(tr("Checking the config..."));
    work([this] { return m_surroundings.errorsOf(m_request.document); },
         [this](const std::vector<std::string>& errors) {
             if (errors.empty()) {
                 lookForOtherAddon();
                 return;
             }
             m_ui->lblfiles->setText(tr("&Errors:"));
             for (const std::string& error : errors)
                 m_ui->lstfiles->addItem(shownText(error));
             ask(tr("The config has %n error(s).", nullptr, static_cast<int>(errors.size())),
                 &PackerWindow::lookForOtherAddon);
         });
}

void PackerWindow::lookForOtherAddon()
{
    work([this] { return otherAddonIn(m_surroundings.tools, m_request.archive, m_request.document); },
         [this](const std::optional<OtherAddon>& other) {
             if (!other) {
                 pack();
                 return;
             }
             ask(tr("%1 is the archive of another add-on: its patch class is %2, that of the config is %3.")
                     .arg(shownText(m_request.archive), shownText(other->otherClass), shownText(other->ownClass)),
                 &PackerWindow::pack);
         });
}

void PackerWindow::ask(const QString& question, void (PackerWindow::*next)())
{
    m_ui->lblresult->setText(question);
    m_anyway = next;
    m_ui->cmdanyway->show();
}

void PackerWindow::pack()
{
    m_ui->lblfiles->setText(tr("&Left out:"));
    m_ui->lblresult->setText(tr("Packing..."));
    PackOrder order;
    order.folder = m_request.folder;
    order.archive = m_request.archive;
    const Progress progress = [this](std::uint64_t done, std::uint64_t total) {
        showProgress(done, total);
        return !m_isClosing;
    };
    work([this, order, progress] { return packFolder(m_surroundings.tools, order, progress); },
         [this](const Outcome<PackResult>& result) { showResult(result); });
}

/// Is called in the other thread.
void PackerWindow::showProgress(std::uint64_t done, std::uint64_t total)
{
    const int share = static_cast<int>(wholeShare * done / total);
    if (share == m_shownShare)
        return;
    m_shownShare = share;
    QMetaObject::invokeMethod(
        m_ui->prgprogress, [this, share] { m_ui->prgprogress->setValue(share); }, Qt::QueuedConnection);
}

void PackerWindow::showResult(const Outcome<PackResult>& result)
{
    if (!result) {
        m_ui->prgprogress->reset();
        m_ui->lblresult->setText(tr("There is no archive.") + QLatin1Char('\n')
                                 + translatedReason(result.reason()));
        return;
    }
    m_ui->prgprogress->setValue(wholeShare);
    for (const LeftOut& file : result->leftOut)
        m_ui->lstfiles->addItem(
            QStringLiteral("%1 (%2)").arg(shownText(printable(file.name)), translated(textOf(file.why))));
    const QString size = QLocale().toString(static_cast<qulonglong>(result->archiveSize));
    m_ui->lblresult->setText(
        tr("%n file(s) packed, %1 bytes:", nullptr, static_cast<int>(result->fileCount)).arg(size)
        + QLatin1Char('\n') + shownText(result->archive));
    m_ui->cmdfolder->setEnabled(true);
    m_madeIn = FolderOf(result->archive);
}

void PackerWindow::showFolder()
{
    if (const Failure failure = m_surroundings.showFolder(m_madeIn))
        m_ui->lblresult->setText(shownText(*failure));
}

} // namespace kitwright
