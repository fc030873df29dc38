#pragma once

#include <QList>
#include <QWidget>

class Page;

/// The main window's central area: the pages, exactly one of them shown, the area the size of
/// the page shown. Each page takes its fixed size when it is first shown, so that a page never
/// shown costs nothing to lay out.
class PageStack : public QWidget {
    Q_OBJECT
public:
    explicit PageStack(QWidget* parent = nullptr);

    /// Takes `page` into the stack, hidden.
    void Add(Page* page);
    /// Shows `page` alone, sized to its content the first time.
    void Show(Page* page);
    /// The page shown, or null.
    Page* Shown() const { return m_shown; }
    /// `page`'s content changed size: it is measured again (at once, when it is shown).
    void Refit(Page* page);

private:
    void Fit(Page* page);

    Page* m_shown = nullptr;
    QList<Page*> m_fitted; ///< pages that have taken their fixed size
};
