#pragma once

// Records what the program asks to open (help, links) instead of opening it.

#include "UrlOpener.h"

#include <QList>
#include <QUrl>

struct RecordingOpener {
    QList<QUrl> opened;

    /// An opener that records each address and says it opened.
    UrlOpener Opener()
    {
        return [this](const QUrl& url) {
            opened << url;
            return true;
        };
    }
};
