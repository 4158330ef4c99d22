// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "oxiconitemdelegate.h"

#include "dragscrolllistview.h"
#include "oxfileiconprovider.h"
#include "support/test.h"

#include <QFileInfo>
#include <QSignalSpy>
#include <QStandardItemModel>

class TestOxIconItemDelegate : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void takesAParent();
    void itemsAreAsLargeAsIconButtons();
    void ignoresWhatTheItemAsksFor_data();
    void ignoresWhatTheItemAsksFor();
    void aLongNameMakesNoRowTaller();
    void replacesTheSize();
    void aShownListTakesTheNewSize();
    void theSameSizeAgainChangesNothing();
    void iconsOfSelectedRowsKeepTheirColors();
};

namespace {

/// A list of one item per name, as the file dialog sets it up.
class FileList
{
public:
    explicit FileList(const QStringList& names)
    {
        for (const QString& name : names) {
            m_model.appendRow(
                new QStandardItem(OxFileIconProvider().icon(QFileInfo(QStringLiteral("/"))), name));
        }
        m_view.setModel(&m_model);
        m_view.setItemDelegate(&m_delegate);
        m_view.setIconSize(IconButtonSize);
        m_view.resize(400, 305);
        m_view.show();
    }

    OxIconItemDelegate* delegate() { return &m_delegate; }
    DragScrollListView* view() { return &m_view; }
    QRect rowRect(int row) { return m_view.visualRect(m_model.index(row, 0)); }

private:
    QStandardItemModel m_model;
    OxIconItemDelegate m_delegate;
    DragScrollListView m_view;
};

} // namespace

void TestOxIconItemDelegate::takesAParent()
{
    QObject parent;
    const auto* delegate = new OxIconItemDelegate(&parent);

    QCOMPARE(delegate->parent(), &parent);
    QCOMPARE(OxIconItemDelegate().parent(), nullptr);
}

void TestOxIconItemDelegate::itemsAreAsLargeAsIconButtons()
{
    QCOMPARE(OxIconItemDelegate().sizeHint({}, {}), QSize(35, 35));
}

void TestOxIconItemDelegate::ignoresWhatTheItemAsksFor_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("size hint") << int(Qt::SizeHintRole) << QVariant(QSize(200, 90));
    QTest::newRow("long text") << int(Qt::DisplayRole) << QVariant(QString(5000, u'W'));
    QTest::newRow("many lines") << int(Qt::DisplayRole)
                                << QVariant(QStringLiteral("line\n").repeated(20));
    QTest::newRow("large font") << int(Qt::FontRole) << QVariant(QFont(QStringLiteral("x"), 60));
}

void TestOxIconItemDelegate::ignoresWhatTheItemAsksFor()
{
    QFETCH(int, role);
    QFETCH(QVariant, value);
    QStandardItemModel model(1, 1);
    const QModelIndex index = model.index(0, 0);
    model.setData(index, QStringLiteral("report.txt"), Qt::DisplayRole);
    model.setData(index, value, role);
    QStyleOptionViewItem option;
    option.decorationSize = QSize(80, 80);
    option.fontMetrics = QFontMetrics(QFont());

    QCOMPARE(OxIconItemDelegate().sizeHint(option, index), QSize(35, 35));
}

void TestOxIconItemDelegate::aLongNameMakesNoRowTaller()
{
    FileList list({ QStringLiteral("a.txt"), QString(255, u'W') + QStringLiteral("\nsecond line"),
                    QStringLiteral("c.txt") });

    QCOMPARE(list.rowRect(0).height(), 35);
    QCOMPARE(list.rowRect(1).height(), 35);
    QCOMPARE(list.rowRect(2).top() - list.rowRect(1).top(), 35);
    QCOMPARE(list.rowRect(1).width(), list.view()->viewport()->width());
}

void TestOxIconItemDelegate::replacesTheSize()
{
    OxIconItemDelegate delegate;

    delegate.setFixedIconSize(QSize(64, 48));

    QCOMPARE(delegate.sizeHint({}, {}), QSize(64, 48));
}

void TestOxIconItemDelegate::aShownListTakesTheNewSize()
{
    FileList list({ QStringLiteral("a.txt"), QStringLiteral("b.txt") });
    QCOMPARE(list.rowRect(1).top(), 35);

    list.delegate()->setFixedIconSize(QSize(48, 48));

    QTRY_COMPARE(list.rowRect(1).top(), 48);
}

void TestOxIconItemDelegate::theSameSizeAgainChangesNothing()
{
    OxIconItemDelegate delegate;
    const QSignalSpy changes(&delegate, &OxIconItemDelegate::sizeHintChanged);

    delegate.setFixedIconSize(QSize(35, 35));
    QCOMPARE(changes.count(), 0);

    delegate.setFixedIconSize(QSize(48, 48));
    QCOMPARE(changes.count(), 1);
}

void TestOxIconItemDelegate::iconsOfSelectedRowsKeepTheirColors()
{
    FileList list({ QString() });
    QPalette palette = list.view()->palette();
    palette.setColor(QPalette::Highlight, palette.color(QPalette::Base)); // the icon is the subject
    list.view()->setPalette(palette);
    list.view()->setFocusPolicy(Qt::NoFocus);
    const auto imageOfRow = [&] {
        return list.view()->viewport()->grab(list.rowRect(0)).toImage();
    };
    const QImage unselected = imageOfRow();

    list.view()->selectionModel()->select(list.view()->model()->index(0, 0),
                                          QItemSelectionModel::Select);

    QCOMPARE(imageOfRow(), unselected);
}

UW_TEST_MAIN(TestOxIconItemDelegate)

#include "tst_oxiconitemdelegate.moc"
