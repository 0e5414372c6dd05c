#include "docu/docudialog.h"

#include <QAction>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QListView>
#include <QPdfBookmarkModel>
#include <QPdfDocument>
#include <QPdfPageNavigator>
#include <QPdfSearchModel>
#include <QPdfView>
#include <QScreen>
#include <QSplitter>
#include <QTreeView>

#include <numbers>

namespace {

constexpr qreal zoomMultiplier = std::numbers::sqrt2;
constexpr int sidePanelWidth = 250;

// The file itself, or none: opening a FIFO might wait for ever, and a device has no end.
QString fileToRead(const QString& fileName)
{
    const QFileInfo place(fileName);
    return place.isFile() || !place.exists() ? fileName : QString();
}

} // namespace

DocuDialog::DocuDialog(QWidget* parent)
    : QDialog(parent, Qt::WindowFlags())
    , document(new QPdfDocument(this))
    , searchModel(new QPdfSearchModel(this))
{
    createWidgets();
    createToolBar();
    createConnections();
    makeAccessible();
    setAttribute(Qt::WA_DeleteOnClose);
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    resize(static_cast<int>(screen.width() * 0.7), static_cast<int>(screen.height() * 0.9));
    splitter->setSizes({sidePanelWidth, width() - sidePanelWidth});
}

// What the children report while they go would reach a dialog that is half gone itself. The view
// goes before its document: pages may be on their way to it from another thread.
DocuDialog::~DocuDialog()
{
    const auto children = findChildren<QObject*>();
    for (QObject* child : children)
        child->disconnect(this);
    delete pdfView;
}

void DocuDialog::loadDocument(const QString& fileName, int page)
{
    document->load(fileToRead(fileName));
    const QString title = document->metaData(QPdfDocument::MetaDataField::Title).toString();
    setWindowTitle(title.isEmpty() ? tr("Documentation") : title);
    bookmarkView->expandAll();
    if (page > 0)
        jumpToTop(page);
    updatePageLabel();
}

void DocuDialog::jumpToTop(int page)
{
    QPdfPageNavigator* const navigator = pdfView->pageNavigator();
    navigator->jump(page, QPointF(), navigator->currentZoom());
}

void DocuDialog::bookmarkSelected(const QModelIndex& index)
{
    if (index.isValid())
        jumpToTop(index.data(static_cast<int>(QPdfBookmarkModel::Role::Page)).toInt());
}

void DocuDialog::pageSelected(int page)
{
    jumpToTop(page);
}

void DocuDialog::searchResultSelected(const QModelIndex& current, const QModelIndex& /*previous*/)
{
    if (!current.isValid())
        return;
    const int page = current.data(static_cast<int>(QPdfSearchModel::Role::Page)).toInt();
    const QPointF place =
        current.data(static_cast<int>(QPdfSearchModel::Role::Location)).toPointF();
    pdfView->pageNavigator()->jump(page, place, 0);
}

void DocuDialog::thumbnailSelected(const QModelIndex& index)
{
    jumpToTop(index.row());
}

void DocuDialog::zoomIn()
{
    pdfView->setZoomFactor(pdfView->zoomFactor() * zoomMultiplier);
}

void DocuDialog::zoomOut()
{
    pdfView->setZoomFactor(pdfView->zoomFactor() / zoomMultiplier);
}

void DocuDialog::previousPage()
{
    const int page = pdfView->pageNavigator()->currentPage();
    if (page - 1 >= 0)
        jumpToTop(page - 1);
}

void DocuDialog::nextPage()
{
    const int page = pdfView->pageNavigator()->currentPage();
    if (page + 1 < document->pageCount())
        jumpToTop(page + 1);
}

void DocuDialog::navigateBack()
{
    pdfView->pageNavigator()->back();
}

void DocuDialog::navigateForward()
{
    pdfView->pageNavigator()->forward();
}

// Deliberate: the action starts checked while the view starts with single pages, so the first click
// changes nothing that can be seen.
void DocuDialog::toggleContinuousMode()
{
    pdfView->setPageMode(continuousAction->isChecked() ? QPdfView::PageMode::MultiPage
                                                       : QPdfView::PageMode::SinglePage);
}

void DocuDialog::findNext()
{
    const int row = searchResultsView->currentIndex().row() + 1;
    selectResult(row < searchModel->rowCount({}) ? row : 0);
}

void DocuDialog::findPrevious()
{
    const int row = searchResultsView->currentIndex().row() - 1;
    selectResult(row >= 0 ? row : searchModel->rowCount({}) - 1);
}

void DocuDialog::selectResult(int row)
{
    searchResultsView->setCurrentIndex(searchModel->index(row, 0));
}

void DocuDialog::updatePageLabel()
{
    pageLabel->setText(
        tr(" %1 / %2").arg(pdfView->pageNavigator()->currentPage() + 1).arg(document->pageCount()));
}
