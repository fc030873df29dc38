#pragma once

#include <QUrl>

#include <functional>

/// Opens an address (a web page, a mail address, a local document) and says whether it could.
using UrlOpener = std::function<bool(const QUrl&)>;

/// The desktop's way: the default browser, mail program or viewer.
bool OpenWithDesktop(const QUrl& url);
