// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// A drag and a tap end to end: from a touch screen's packets through Qt's own tuiotouch plugin,
// which turns them into touch points, to a list and a button in it.

#include "dragscrollbutton.h"
#include "dragscrolllistview.h"

#include "support/test.h"

#include <QApplication>
#include <QDataStream>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QUdpSocket>

namespace {

/// The port on which the plugin of this process listens.
quint16 port = 0;

/// One finger as a TUIO tracker reports it: a bundle of OSC messages per frame.
class TuioFinger
{
public:
    /// `at` is where the finger is in `window`, to which the plugin maps all positions.
    void put(const QWidget& window, const QPointF& at)
    {
        const auto x = float(at.x() / window.width());
        const auto y = float(at.y() / window.height());
        send({ message(
                   ",si", [](QDataStream& out) { out << qint32(Session); }, "alive"),
               message(
                   ",sifffff",
                   [=](QDataStream& out) { out << qint32(Session) << x << y << 0.F << 0.F << 0.F; },
                   "set"),
               frame() });
    }

    void lift()
    {
        send({ message(
                   ",s", [](QDataStream&) {}, "alive"),
               frame() });
    }

private:
    static constexpr int Session = 12;

    static QByteArray padded(QByteArray text)
    {
        text.append('\0');
        while (text.size() % 4 != 0) {
            text.append('\0');
        }
        return text;
    }

    template <typename Write>
    static QByteArray message(const char* types, Write write, const char* command)
    {
        QByteArray arguments;
        QDataStream out(&arguments, QIODevice::WriteOnly); // big endian, as OSC is
        out.setFloatingPointPrecision(QDataStream::SinglePrecision);
        write(out);
        return padded("/tuio/2Dcur") + padded(types) + padded(command) + arguments;
    }

    QByteArray frame()
    {
        return message(
            ",si", [this](QDataStream& out) { out << qint32(++m_frame); }, "fseq");
    }

    void send(const QList<QByteArray>& messages)
    {
        QByteArray bundle;
        QDataStream out(&bundle, QIODevice::WriteOnly);
        out.writeRawData("#bundle\0", 8);
        out << quint64(1); // now
        for (const QByteArray& content : messages) {
            out << content; // a size of 32 bits, then the bytes
        }
        QCOMPARE(m_socket.writeDatagram(bundle, QHostAddress::LocalHost, port), bundle.size());
    }

    QUdpSocket m_socket;
    int m_frame = 0;
};

} // namespace

class TestTuioTouch : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void dragScrollsTheListAndTapClicksTheButton();
};

void TestTuioTouch::dragScrollsTheListAndTapClicksTheButton()
{
    QStandardItemModel model(100, 1);
    DragScrollListView list;
    list.setModel(&model);
    list.resize(400, 400);
    model.setData(model.index(3, 0), QSize(300, 60), Qt::SizeHintRole);
    auto* button = new DragScrollButton(QStringLiteral("Up"));
    list.setIndexWidget(model.index(3, 0), button);
    list.show();
    list.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&list)); // the plugin's touches go to the active window
    QSignalSpy pressed(button, &QPushButton::pressed);
    QSignalSpy clicked(button, &QPushButton::clicked);
    QSignalSpy listClicked(&list, &QListView::clicked);
    const QScrollBar* bar = list.verticalScrollBar();

    TuioFinger finger;
    QPointF at = button->mapTo(&list, QPoint(50, 40));
    finger.put(list, at);
    QTRY_COMPARE(pressed.count(), 1);
    for (int step = 1; step <= 6; ++step) {
        at.ry() -= 5;
        finger.put(list, at);
        QTRY_COMPARE(bar->value(), 5 * step);
    }
    finger.lift();
    QTRY_VERIFY(!button->isDown());
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(listClicked.count(), 0);

    finger.put(list, button->mapTo(&list, QPoint(50, 20)));
    QTRY_COMPARE(pressed.count(), 2);
    finger.lift();
    QTRY_COMPARE(clicked.count(), 1);
    QCOMPARE(listClicked.count(), 1);
    QCOMPARE(bar->value(), 30);
}

int main(int argc, char* argv[])
{
    const ThrowAwayHome home;
    {
        QUdpSocket probe; // asks for a free port; the plugin takes it once this one has let it go
        if (!probe.bind(QHostAddress::AnyIPv4)) {
            qFatal("no free port");
        }
        port = probe.localPort();
    }
    qputenv("QT_QPA_GENERIC_PLUGINS", "tuiotouch:udp=" + QByteArray::number(port));
    QApplication application(argc, argv);
    // The drag ends where the tap begins, sooner after it than two taps of a hand.
    QApplication::setDoubleClickInterval(0);
    TestTuioTouch test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_tuiotouch.moc"
