#include "AboutDialog.h"

#include "HelpActions.h"
#include "HyperlinkLabel.h"
#include "StoredPicture.h"

#include <QGridLayout>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

AboutDialog::AboutDialog(UrlOpener open, QWidget* owner) : QDialog(owner)
{
    setWindowTitle(tr("About Zavoren!"));
    setModal(true);
    auto* icon = new QLabel(this);
    icon->setPixmap(QPixmap::fromImage(StoredPicture(QStringLiteral("zavoren"))));
    icon->setAccessibleName(tr("Zavoren! icon"));
    auto* product = new QLabel(tr("Zavoren! Kanji Learning Program"), this);
    QFont bold = product->font();
    bold.setBold(true);
    product->setFont(bold);
    m_version = new QLabel(QStringLiteral("v1.0"), this);
    m_version->setText(VersionText());
    auto* notice = new QLabel(tr("Copyright \u00A9 Quelmar Software. Teaches kanji by writing."), this);
    m_site = new HyperlinkLabel(open, this);
    m_site->SetLink(QString::fromLatin1(MakerSite));
    m_support = new HyperlinkLabel(open, this);
    m_support->SetLink(tr("Support"), QString::fromLatin1(SupportAddress));
    auto* credits = new QLabel(
        tr("Stroke data: KanjiVG, \u00A9 Ulrich Apel, CC BY-SA 3.0.\n"
           "Readings and meanings: KANJIDIC2, \u00A9 the Electronic Dictionary Research and Development Group, "
           "CC BY-SA 4.0.\nThe character database is a derived work shared under CC BY-SA.")
            + QLatin1Char('\n')
            + tr("Words: EDICT, \u00A9 the Electronic Dictionary Research and Development Group, CC BY-SA 4.0; "
                 "parts: KanjiVG.")
            + QLatin1Char('\n')
            + tr("Handwriting recognition: Zinnia, \u00A9 Taku Kudo, BSD; its Japanese model from the Tegaki "
                 "project, LGPL-2.1+."),
        this);
    credits->setWordWrap(true);
    m_ok = new QPushButton(tr("OK"), this);
    m_ok->setObjectName(QStringLiteral("okButton"));
    m_ok->setDefault(true);
    connect(m_ok, &QPushButton::clicked, this, [this] { done(1); });

    auto* texts = new QVBoxLayout;
    for (QWidget* w : {static_cast<QWidget*>(product), static_cast<QWidget*>(m_version), static_cast<QWidget*>(notice),
             static_cast<QWidget*>(m_site), static_cast<QWidget*>(m_support), static_cast<QWidget*>(credits)})
        texts->addWidget(w);
    auto* grid = new QGridLayout(this);
    grid->addWidget(icon, 0, 0, Qt::AlignTop);
    grid->addLayout(texts, 0, 1);
    grid->addWidget(m_ok, 1, 1, Qt::AlignRight);
    // As wide as it always was, and as tall as the wrapped credits need.
    setFixedSize(460, heightForWidth(460));
}

void AboutDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (QWidget* owner = parentWidget())
        move(owner->frameGeometry().center() - QRect(QPoint(0, 0), frameGeometry().size()).center());
}
