#pragma once

#include <QLocale>

class QCoreApplication;

/// Shows the program in the language of `locale` (the first of its interface languages that the
/// program speaks; English, the language it is written in, otherwise), with Qt's own texts
/// (standard buttons, file dialogs) in the same language. Returns the language chosen, empty
/// for English.
QString InstallTranslations(QCoreApplication& application, const QLocale& locale);
