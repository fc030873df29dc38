#include "PageStack.h"

#include "Page.h"

PageStack::PageStack(QWidget* parent) : QWidget(parent) { }

void PageStack::Add(Page* page)
{
    page->setParent(this);
    page->hide();
}

void PageStack::Fit(Page* page)
{
    if (m_fitted.contains(page))
        return;
    page->adjustSize();
    page->setFixedSize(page->size());
    m_fitted.append(page);
}

void PageStack::Show(Page* page)
{
    if (page == m_shown)
        return;
    Fit(page);
    Page* previous = m_shown;
    m_shown = page;
    page->move(0, 0);
    page->show();
    if (previous)
        previous->hide();
    setFixedSize(page->size());
    page->setFocus();
}

void PageStack::Refit(Page* page)
{
    page->setMinimumSize(0, 0);
    page->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    m_fitted.removeOne(page);
    if (page == m_shown) {
        m_shown = nullptr;
        Show(page);
    }
}
