// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QTemporaryDir>
#include <QTest>

/*!
 * Base of every test class: what must hold around each test function.
 *
 * A Qt warning that the function did not announce with QTest::ignoreMessage() fails it, and so does
 * a top-level widget that it leaves behind. A class with an init() or cleanup() of its own calls
 * these.
 */
class Test : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();
};

/// Points home, settings, cache and runtime folder into a throw-away folder for as long as it
/// lives. To be made before the application object.
class ThrowAwayHome
{
public:
    ThrowAwayHome();

    QString path() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
};

/// The main function of a test program. ApplicationClass is QApplication unless the test needs an
/// application object of its own or none that shows widgets.
#define UW_TEST_MAIN(TestClass) UW_TEST_MAIN_WITH(QApplication, TestClass)
#define UW_TEST_MAIN_WITH(ApplicationClass, TestClass)                                             \
    int main(int argc, char* argv[])                                                               \
    {                                                                                              \
        const ThrowAwayHome home;                                                                  \
        ApplicationClass application(argc, argv);                                                  \
        TestClass test;                                                                            \
        QTEST_SET_MAIN_SOURCE_PATH                                                                 \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
