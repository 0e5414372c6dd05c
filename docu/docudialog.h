#pragma once

#include <QDialog>
#include <QModelIndex>

class QAction;
class QLabel;
class QLineEdit;
class QListView;
class QPdfDocument;
class QPdfPageSelector;
class QPdfSearchModel;
class QPdfView;
class QSplitter;
class QTabWidget;
class QToolBar;
class QTreeView;
class ZoomSelector;

/// Shows a PDF file: its pages, and beside them its bookmarks, small pictures of the pages and what
/// a search has found. The dialog deletes itself when it is closed.
///
/// Its code is split: docudialog.cpp holds what it does, docudialog_widgets.cpp,
/// docudialog_toolbar.cpp, docudialog_connections.cpp and docudialog_accessibility.cpp build it in
/// this order.
class DocuDialog : public QDialog
{
    Q_OBJECT

public:
    explicit DocuDialog(QWidget* parent);
    ~DocuDialog() override;

    /// Shows the file, from a page on (counted from 0). A file that is missing or cannot be read
    /// gives an empty view.
    void loadDocument(const QString& fileName, int page);

private slots:
    void bookmarkSelected(const QModelIndex& index);
    void pageSelected(int page);
    void searchResultSelected(const QModelIndex& current, const QModelIndex& previous);
    void thumbnailSelected(const QModelIndex& index);
    void zoomIn();
    void zoomOut();
    void previousPage();
    void nextPage();
    void navigateBack();
    void navigateForward();
    void toggleContinuousMode();
    void findNext();
    void findPrevious();

private:
    void createWidgets();
    void createToolBar();
    void createConnections();
    void makeAccessible();

    QWidget* tabPage(QWidget* content);
    QAction* addStyleAction(int standardIcon, const QString& toolTip, void (DocuDialog::*slot)());
    void addNavigation();
    void addZoom();
    void addSearch();

    void connectPages();
    void connectZoom();
    void connectSidePanel();
    void connectSearch();

    void jumpToTop(int page);
    void selectResult(int row);
    void updatePageLabel();

    QPdfView* pdfView;
    QTreeView* bookmarkView;
    QListView* thumbnailsView;
    QListView* searchResultsView;
    QTabWidget* tabWidget;
    QSplitter* splitter;
    QToolBar* toolBar;
    ZoomSelector* zoomSelector;
    QPdfPageSelector* pageSelector;
    QLineEdit* searchField;
    QLabel* pageLabel;
    QAction* backAction;
    QAction* forwardAction;
    QAction* continuousAction;
    QPdfDocument* document;
    QPdfSearchModel* searchModel;
};
