#pragma once

#include "UrlOpener.h"

#include <QDialog>

class HyperlinkLabel;
class QLabel;
class QPushButton;

/// The About box: product line, version, the maker's site and support links, the data credits.
class AboutDialog : public QDialog {
    Q_OBJECT
public:
    /// The links open through `open`.
    explicit AboutDialog(UrlOpener open, QWidget* owner = nullptr);

    QLabel* VersionLabel() const { return m_version; }
    HyperlinkLabel* SiteLink() const { return m_site; }
    HyperlinkLabel* SupportLink() const { return m_support; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    QPushButton* OkButton() const { return m_ok; }
    QLabel* m_version = nullptr;
    HyperlinkLabel* m_site = nullptr;
    HyperlinkLabel* m_support = nullptr;
    QPushButton* m_ok = nullptr;
};
