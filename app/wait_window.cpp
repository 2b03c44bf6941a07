// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/wait_window.h"

#include "ui_wait_window.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QWindow>

namespace kitwright {

namespace {

/// A pass over a shorter text ends before the eye catches a window.
constexpr std::size_t visibleLength = 4 << 20;
constexpr int longestWaitForWindow = 200; // ms

} // namespace

Form2::Form2(QWidget* parent) : QDialog(parent), m_ui(std::make_unique<Ui::Form2>())
{
    m_ui->setupUi(this);
    // The author goes on typing into the window behind it.
    setAttribute(Qt::WA_ShowWithoutActivating);
    setWindowFlag(Qt::WindowDoesNotAcceptFocus);
}

Form2::~Form2() = default;

void Form2::announce(std::size_t textLength)
{
    const bool visible = textLength >= visibleLength;
    setAttribute(Qt::WA_DontShowOnScreen, !visible);
    show();
    if (!visible)
        return;
    raise();
    // The window system has to map the window before it can be painted; the author's input waits meanwhile.
    QElapsedTimer waiting;
    waiting.start();
    while (!windowHandle()->isExposed() && waiting.elapsed() < longestWaitForWindow)
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, longestWaitForWindow);
    repaint();
    m_ui->Label1->repaint();
}

} // namespace kitwright
