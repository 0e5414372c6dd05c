#include "docu/docudialog.h"

#include <QListView>
#include <QPdfView>
#include <QSplitter>
#include <QTabWidget>
#include <QTreeView>
#include <QVBoxLayout>

void DocuDialog::createWidgets()
{
    setWindowTitle(tr("Documentation"));
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    splitter = new QSplitter(Qt::Horizontal, this);

    bookmarkView = new QTreeView;
    bookmarkView->setHeaderHidden(true);
    thumbnailsView = new QListView;
    thumbnailsView->setIconSize(QSize(128, 128));
    thumbnailsView->setViewMode(QListView::IconMode);
    thumbnailsView->setMovement(QListView::Static); // behind the view mode, which sets it, too
    thumbnailsView->setResizeMode(QListView::Adjust);
    searchResultsView = new QListView;
    searchResultsView->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    tabWidget = new QTabWidget;
    tabWidget->setTabPosition(QTabWidget::West);
    tabWidget->addTab(tabPage(bookmarkView), tr("Bookmarks"));
    tabWidget->addTab(tabPage(thumbnailsView), tr("Pages"));
    tabWidget->addTab(tabPage(searchResultsView), tr("Search Results"));

    pdfView = new QPdfView(splitter);
    pdfView->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    splitter->insertWidget(0, tabWidget);
    splitter->setStretchFactor(0, 0);
    splitter->setStretchFactor(1, 10);
    column->addWidget(splitter);
}

QWidget* DocuDialog::tabPage(QWidget* content)
{
    auto* const page = new QWidget;
    auto* const column = new QVBoxLayout(page);
    column->setContentsMargins(2, 2, 2, 2);
    column->setSpacing(0);
    column->addWidget(content);
    return page;
}
