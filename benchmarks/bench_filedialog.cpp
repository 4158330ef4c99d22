// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// The file dialog on a folder of many files beside QFileDialog, not the desktop's own, in turns:
// how long until its first frame is painted, until every file is listed, and the longest that the
// event loop is held up from the start until things are quiet, which is what a finger notices.

#include "measure.h"
#include "oxfiledialog.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QListView>
#include <QTemporaryDir>
#include <QThread>
#include <QTimerEvent>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>

namespace {

constexpr int Rounds = 9;
constexpr int Patience = 30000; // milliseconds until a folder must be listed
constexpr int Quiet = 300; // milliseconds: what comes after, such as sorting, has come by then

double milliseconds(const QElapsedTimer& timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

/// Beats in every turn of the event loop and remembers the longest time between two beats.
class Heartbeat : public QObject
{
public:
    Heartbeat()
    {
        m_timer.start();
        startTimer(0);
    }

    double longest() const { return m_longest; }

protected:
    void timerEvent(QTimerEvent* /*event*/) override
    {
        m_longest = std::max(m_longest, milliseconds(m_timer));
        m_timer.restart();
    }

private:
    QElapsedTimer m_timer;
    double m_longest = 0;
};

/// Remembers when the first event that painted a widget was over: the frame is then on the screen.
class Application : public QApplication
{
public:
    using QApplication::QApplication;

    void awaitFrame(const QWidget* widget)
    {
        m_widget = widget;
        m_painted = false;
        m_frame = 0;
        m_timer.start();
    }

    /// Milliseconds, or 0 if it has not been painted yet.
    double frame() const { return m_frame; }

    bool notify(QObject* receiver, QEvent* event) override
    {
        if (QThread::currentThread() != thread()) { // the reader of either dialog
            return QApplication::notify(receiver, event);
        }
        ++m_depth;
        const bool result = QApplication::notify(receiver, event);
        --m_depth;
        m_painted = m_painted || (receiver == m_widget && event->type() == QEvent::Paint);
        if (m_depth == 0 && m_painted && m_frame == 0) {
            m_frame = milliseconds(m_timer);
        }
        return result;
    }

private:
    const QWidget* m_widget = nullptr;
    bool m_painted = false;
    int m_depth = 0;
    double m_frame = 0;
    QElapsedTimer m_timer;
};

struct Times
{
    double frame = 0;
    double listed = 0;
    double stall = 0;
};

using CreateDialog = std::function<std::unique_ptr<QDialog>(const QString& folder)>;

std::unique_ptr<QDialog> createOurs(const QString& folder)
{
    OxFileDialog::OxFileDialogArgs args;
    args.directory = folder;
    args.filter = QStringLiteral("Texts (*.txt)");
    return std::make_unique<OxFileDialog>(nullptr, args, OxFileDialog::OpenFile);
}

std::unique_ptr<QDialog> createPeer(const QString& folder)
{
    auto dialog =
        std::make_unique<QFileDialog>(nullptr, QString(), folder, QStringLiteral("Texts (*.txt)"));
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setViewMode(QFileDialog::List);
    dialog->setFileMode(QFileDialog::ExistingFile);
    return dialog;
}

/// The list of files: the one whose model has them, in either dialog, and not the side bar.
int countRows(const QDialog* dialog)
{
    int rows = 0;
    const QList<QListView*> lists = dialog->findChildren<QListView*>();
    for (const QListView* list : lists) {
        if (list->model() != nullptr) {
            rows = std::max(rows, list->model()->rowCount(list->rootIndex()));
        }
    }
    return rows;
}

Times measure(Application* application, const CreateDialog& create, const QString& folder,
              int files)
{
    Times times;
    QElapsedTimer timer;
    const Heartbeat heartbeat;
    timer.start();
    const std::unique_ptr<QDialog> dialog = create(folder);
    const double made = milliseconds(timer);
    application->awaitFrame(dialog.get());
    dialog->show();
    while (times.listed == 0 && timer.elapsed() < Patience) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (countRows(dialog.get()) == files) {
            times.listed = milliseconds(timer);
        }
    }
    QElapsedTimer quiet;
    quiet.start();
    while (quiet.elapsed() < Quiet) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    times.frame = made + application->frame();
    times.stall = heartbeat.longest();
    return times;
}

bool createFiles(const QString& folder, int count)
{
    bool created = true;
    for (int number = 0; number < count; ++number) {
        // Not in their order, as folders are not.
        QFile file(QStringLiteral("%1/Label %2.txt").arg(folder).arg((number * 7919LL) % count));
        created = file.open(QIODevice::WriteOnly) && created;
    }
    return created;
}

/// False if a folder was not listed in time.
bool compare(Application* application, int files)
{
    const QTemporaryDir folder;
    if (!createFiles(folder.path(), files)) {
        return false;
    }
    std::vector<double> values[3][2];
    for (int round = -1; round < Rounds; ++round) { // the first warms up
        const Times both[] { measure(application, createOurs, folder.path(), files),
                             measure(application, createPeer, folder.path(), files) };
        for (int who = 0; who < 2; ++who) {
            if (both[who].listed == 0 || both[who].frame == 0) {
                return false;
            }
            if (round >= 0) {
                values[0][who].push_back(both[who].frame);
                values[1][who].push_back(both[who].listed);
                values[2][who].push_back(both[who].stall);
            }
        }
    }
    std::printf("\n%d files\n", files);
    const char* const names[] { "constructed, shown, first frame painted (ms)",
                                "every file listed (ms)", "longest stall of the event loop (ms)" };
    for (int what = 0; what < 3; ++what) {
        Measure::printRow(names[what], Measure::median(values[what][0]),
                          Measure::median(values[what][1]));
    }
    const auto [least, most] = std::minmax_element(values[2][0].begin(), values[2][0].end());
    std::printf("  our longest stalls: %.1f to %.1f ms\n", *least, *most);
    return true;
}

} // namespace

int main(int argc, char* argv[])
{
    // A person's own favourites, folders and channels have no part in this.
    const QTemporaryDir home;
    for (const char* variable : { "HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR" }) {
        qputenv(variable, QFile::encodeName(home.path()));
    }
    Application application(argc, argv);

    Measure::printHead("OxFileDialog and QFileDialog (not native), medians");
    for (const int files : { 10, 10000, 20000 }) {
        if (!compare(&application, files)) {
            std::fprintf(stderr, "a folder of %d files was not listed\n", files);
            return 1;
        }
    }
    std::printf("\ntargets: the first frame no slower than QFileDialog's, "
                "the longest stall below 50 ms at 20000 files\n");
    return 0;
}
