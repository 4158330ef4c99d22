// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "pageview.h"

#include "applicationfont.h"
#include "signallog.h"
#include "stage.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace Gallery {

namespace {

constexpr int LowerHalfHeight = 150; // pixels
constexpr int DialogColumns = 5;

QPlainTextEdit* createSnippetView()
{
    auto* view = new QPlainTextEdit;
    view->setObjectName(QStringLiteral("GallerySnippet"));
    view->setAccessibleName(QStringLiteral("Snippet"));
    view->setReadOnly(true);
    view->setFocusPolicy(Qt::TabFocus); // a tap leaves the focus with the instance at hand
    view->setLineWrapMode(QPlainTextEdit::NoWrap);
    view->setLayoutDirection(Qt::LeftToRight); // code is, wherever it is read
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSize(ApplicationFont::sizes().tiny);
    view->setFont(font);
    return view;
}

} // namespace

PageView::PageView(QWidget* parent)
    : QWidget(parent)
    , m_title(new QLabel)
    , m_summary(new QLabel)
    , m_instances(new QScrollArea)
    , m_dialogBar(new QWidget)
    , m_dialogButtons(new QGridLayout(m_dialogBar))
    , m_snippet(createSnippetView())
    , m_log(new SignalLog)
{
    setObjectName(QStringLiteral("GalleryPageView"));

    m_title->setFont(ApplicationFont::getWidgetFontLarge(true));
    m_summary->setFont(ApplicationFont::getWidgetFontSmall(false));
    m_summary->setWordWrap(true);
    m_instances->setObjectName(QStringLiteral("GalleryInstances"));
    m_instances->setWidgetResizable(true);
    m_instances->setFrameShape(QFrame::NoFrame);
    m_instances->setFocusPolicy(Qt::NoFocus);
    m_dialogButtons->setContentsMargins(0, 0, 0, 0);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(14, 10, 14, 12);
    layout->addWidget(m_title);
    layout->addWidget(m_summary);
    layout->addWidget(m_instances, 1);
    layout->addWidget(m_dialogBar);
    layout->addWidget(createLowerHalf());
}

void PageView::showPage(const Family& family, const Page& page)
{
    m_log->reset();
    m_title->setText(page.id);
    m_summary->setText(page.summary);
    m_snippet->setPlainText(family.snippetOf(page));

    auto* content = new QWidget;
    content->setObjectName(QStringLiteral("GalleryInstancesContent"));
    content->setFont(ApplicationFont::getWidgetFont(false));
    auto* grid = new QGridLayout(content);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(0); // the stage spaces the columns
    grid->setVerticalSpacing(10);
    Stage stage(grid, m_log);
    if (page.build) {
        page.build(stage);
    }
    grid->setRowStretch(grid->rowCount(), 1);
    m_instances->setWidget(content);

    fillDialogButtons(page);
}

QWidget* PageView::createLowerHalf()
{
    auto* half = new QWidget;
    half->setFixedHeight(LowerHalfHeight);
    auto* layout = new QHBoxLayout(half);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(m_snippet, 9);
    layout->addWidget(m_log, 4);
    return half;
}

void PageView::fillDialogButtons(const Page& page)
{
    while (const std::unique_ptr<QLayoutItem> item { m_dialogButtons->takeAt(0) }) {
        delete item->widget();
    }
    for (const DialogState& state : page.dialogs) {
        auto* button = new QPushButton(state.caption);
        button->setObjectName(QStringLiteral("GalleryButton"));
        connect(button, &QPushButton::clicked, this, state.open);
        const int index = m_dialogButtons->count();
        m_dialogButtons->addWidget(button, index / DialogColumns, index % DialogColumns);
    }
    m_dialogBar->setVisible(!page.dialogs.isEmpty());
}

} // namespace Gallery

#include "moc_pageview.cpp"
