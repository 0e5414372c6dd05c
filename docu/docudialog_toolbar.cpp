#include "docu/docudialog.h"

#include "docu/zoomselector.h"

#include <QAction>
#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPdfPageSelector>
#include <QStyle>
#include <QToolBar>

void DocuDialog::createToolBar()
{
    toolBar = new QToolBar(this);
    toolBar->setMovable(false);
    toolBar->setFloatable(false);
    addNavigation();
    toolBar->addSeparator();
    addZoom();
    toolBar->addSeparator();
    continuousAction = toolBar->addAction(tr("Continuous"));
    continuousAction->setCheckable(true);
    continuousAction->setChecked(true);
    continuousAction->setToolTip(tr("Toggle continuous / single page display"));
    connect(continuousAction, &QAction::triggered, this, &DocuDialog::toggleContinuousMode);
    toolBar->addSeparator();
    addSearch();
    qobject_cast<QBoxLayout*>(layout())->insertWidget(0, toolBar);
}

QAction* DocuDialog::addStyleAction(int standardIcon, const QString& toolTip,
                                    void (DocuDialog::*slot)())
{
    const auto icon = static_cast<QStyle::StandardPixmap>(standardIcon);
    QAction* const action = toolBar->addAction(style()->standardIcon(icon), QString());
    action->setToolTip(toolTip);
    connect(action, &QAction::triggered, this, slot);
    return action;
}

void DocuDialog::addNavigation()
{
    backAction = addStyleAction(QStyle::SP_ArrowBack, tr("Back to previous view"),
                                &DocuDialog::navigateBack);
    backAction->setEnabled(false);
    forwardAction = addStyleAction(QStyle::SP_ArrowForward, tr("Forward to next view"),
                                   &DocuDialog::navigateForward);
    forwardAction->setEnabled(false);
    toolBar->addSeparator();
    addStyleAction(QStyle::SP_ArrowLeft, tr("Previous Page (PgUp)"), &DocuDialog::previousPage)
        ->setShortcut(Qt::Key_PageUp);
    pageSelector = new QPdfPageSelector(toolBar);
    toolBar->addWidget(pageSelector);
    addStyleAction(QStyle::SP_ArrowRight, tr("Next Page (PgDown)"), &DocuDialog::nextPage)
        ->setShortcut(Qt::Key_PageDown);
    pageLabel = new QLabel(toolBar);
    toolBar->addWidget(pageLabel);
}

void DocuDialog::addZoom()
{
    QAction* const out = toolBar->addAction(tr("\u2212"), this, &DocuDialog::zoomOut);
    out->setToolTip(tr("Zoom Out (Ctrl+-)"));
    out->setShortcut(Qt::CTRL | Qt::Key_Minus);
    zoomSelector = new ZoomSelector(toolBar);
    zoomSelector->setMaximumWidth(150);
    toolBar->addWidget(zoomSelector);
    QAction* const in = toolBar->addAction(tr("+"), this, &DocuDialog::zoomIn);
    in->setToolTip(tr("Zoom In (Ctrl+=)"));
    in->setShortcut(Qt::CTRL | Qt::Key_Equal);
}

void DocuDialog::addSearch()
{
    searchField = new QLineEdit(toolBar);
    searchField->setPlaceholderText(tr("Find in document"));
    searchField->setMaximumWidth(300);
    toolBar->addWidget(searchField);
    addStyleAction(QStyle::SP_ArrowUp, tr("Find Previous (Shift+F3)"), &DocuDialog::findPrevious)
        ->setShortcut(Qt::SHIFT | Qt::Key_F3);
    addStyleAction(QStyle::SP_ArrowDown, tr("Find Next (F3)"), &DocuDialog::findNext)
        ->setShortcut(Qt::Key_F3);
}
