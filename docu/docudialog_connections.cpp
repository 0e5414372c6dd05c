#include "docu/docudialog.h"

#include "docu/zoomselector.h"

#include <QAction>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QListView>
#include <QPdfBookmarkModel>
#include <QPdfDocument>
#include <QPdfPageNavigator>
#include <QPdfPageSelector>
#include <QPdfSearchModel>
#include <QPdfView>
#include <QShortcut>
#include <QTabWidget>
#include <QTreeView>

namespace {

constexpr int searchResultsTab = 2;

} // namespace

void DocuDialog::createConnections()
{
    connectPages();
    connectZoom();
    connectSidePanel();
    connectSearch();
    pdfView->setDocument(document);
    const auto* const find = new QShortcut(QKeySequence::Find, this);
    connect(find, &QShortcut::activated, this,
            [this] { searchField->setFocus(Qt::ShortcutFocusReason); });
}

void DocuDialog::connectPages()
{
    const QPdfPageNavigator* const navigator = pdfView->pageNavigator();
    pageSelector->setDocument(document);
    connect(pageSelector, &QPdfPageSelector::currentPageChanged, this, &DocuDialog::pageSelected);
    connect(navigator, &QPdfPageNavigator::currentPageChanged, pageSelector,
            &QPdfPageSelector::setCurrentPage);
    connect(navigator, &QPdfPageNavigator::currentPageChanged, this, &DocuDialog::updatePageLabel);
    connect(navigator, &QPdfPageNavigator::backAvailableChanged, backAction, &QAction::setEnabled);
    connect(navigator, &QPdfPageNavigator::forwardAvailableChanged, forwardAction,
            &QAction::setEnabled);
}

void DocuDialog::connectZoom()
{
    connect(zoomSelector, &ZoomSelector::zoomModeChanged, pdfView, &QPdfView::setZoomMode);
    connect(zoomSelector, &ZoomSelector::zoomFactorChanged, pdfView, &QPdfView::setZoomFactor);
    connect(pdfView, &QPdfView::zoomFactorChanged, zoomSelector, &ZoomSelector::setZoomFactor);
    zoomSelector->reset();
}

void DocuDialog::connectSidePanel()
{
    auto* const bookmarks = new QPdfBookmarkModel(this);
    bookmarks->setDocument(document);
    bookmarkView->setModel(bookmarks);
    connect(bookmarkView, &QAbstractItemView::activated, this, &DocuDialog::bookmarkSelected);
    thumbnailsView->setModel(document->pageModel());
    connect(thumbnailsView, &QAbstractItemView::activated, this, &DocuDialog::thumbnailSelected);
}

void DocuDialog::connectSearch()
{
    searchModel->setDocument(document);
    pdfView->setSearchModel(searchModel);
    connect(searchField, &QLineEdit::textEdited, this, [this](const QString& text) {
        searchModel->setSearchString(text);
        tabWidget->setCurrentIndex(searchResultsTab);
    });
    searchResultsView->setModel(searchModel);
    connect(searchResultsView->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &DocuDialog::searchResultSelected);
    // The view does not notice by itself that more has been found, page by page.
    const auto repaint = [this] { pdfView->viewport()->update(); };
    connect(searchModel, &QAbstractItemModel::rowsInserted, this, repaint);
    connect(searchModel, &QAbstractItemModel::modelReset, this, repaint);
}
