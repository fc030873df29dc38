#pragma once

#include <QMessageBox>

#include <functional>

/// Shows a modal message box and returns the button pressed. With the environment variable
/// ZAVOREN_TEST_ANSWER set (tests only), nothing is shown: the box is written to standard error
/// as "MESSAGE title: text" and the answer named there ("yes", "no", "ok", "cancel") is returned.
QMessageBox::StandardButton ShowMessage(QWidget* parent, QMessageBox::Icon icon, const QString& title,
    const QString& text, QMessageBox::StandardButtons buttons = QMessageBox::Ok,
    QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);

/// Tests only: when set, called instead of showing a box (icon, title, text) and its answer used.
using MessageHook = std::function<QMessageBox::StandardButton(QMessageBox::Icon, const QString&, const QString&)>;
MessageHook& TestMessageHook();

/// The error box of a data store failure: error icon, the given title and the failure's text.
void ShowStoreError(QWidget* parent, const char* title, const char* message);
