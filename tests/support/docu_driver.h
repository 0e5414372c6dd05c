#pragma once

#include "docu/docudialog.h"
#include "tests/support/pdf_file.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPdfDocument>
#include <QPdfPageNavigator>
#include <QPdfSearchModel>
#include <QPdfView>
#include <QPointer>
#include <QSplitter>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QToolBar>
#include <QTreeView>

class ZoomSelector;

/// The viewer of the manual on the screen, with a file if one is given, and its widgets.
struct docu_driver
{
    docu_driver();
    explicit docu_driver(const pdf_file& file, int page = 0);
    ~docu_driver();

    docu_driver(const docu_driver&) = delete;
    docu_driver& operator=(const docu_driver&) = delete;

    /// Writes the bytes into a file and answers its path.
    QString write(const QByteArray& bytes) const;
    /// The tool button whose tool tip starts so, or whose text this is.
    QAction* action(const QString& text) const;
    int page() const { return view->pageNavigator()->currentPage(); }
    QString label() const;
    /// What is shown in a row of the search results, as far as it is selected.
    int result_row() const { return results->currentIndex().row(); }
    /// Types into the search field and waits until so many results are there.
    void search(const QString& text, int results_expected) const;

    QTemporaryDir folder;
    QPointer<DocuDialog> dialog;
    QPdfView* view;
    QTreeView* bookmarks;
    QListView* thumbnails;
    QListView* results;
    QTabWidget* tabs;
    QSplitter* splitter;
    QToolBar* tools;
    ZoomSelector* zoom;
    QLineEdit* field;
    QPdfDocument* document;
    QPdfSearchModel* found;
};
