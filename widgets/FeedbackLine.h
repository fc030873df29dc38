#pragma once

#include <QLabel>

/// One line under a writing canvas that says why the last stroke was refused. Screen readers
/// find it as "Stroke feedback"; its description is always its current text (the way a named
/// label's text reaches them on Linux), and each new message is announced.
class FeedbackLine : public QLabel {
    Q_OBJECT
public:
    explicit FeedbackLine(QWidget* parent = nullptr);

    /// Shows and announces a message.
    void Say(const QString& message);
    /// Empties the line (its height stays, so nothing below it moves).
    void Clear();

signals:
    /// A message was shown and announced to assistive technology.
    void announced(const QString& message);
};
