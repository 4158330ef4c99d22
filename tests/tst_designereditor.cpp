// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "support/formtexts.h"
#include "support/propertycases.h"
#include "support/test.h"

#include <QApplication>
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QLayout>
#include <QSqlDatabase>
#include <QTemporaryDir>
#include <QtDesigner/QDesignerActionEditorInterface>
#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerContainerExtension>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormEditorPluginInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerObjectInspectorInterface>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QDesignerWidgetBoxInterface>
#include <QtDesigner/QExtensionManager>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <memory>

// Qt Designer itself, without its windows: what it makes, shows in its property editor and saves.

class TestDesignerEditor : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void cleanup();
    void boxOffersEveryWidget();
    void widgetOfTheBoxIsSavedAsItself_data();
    void widgetOfTheBoxIsSavedAsItself();
    void editorLoadsAndSavesEveryProperty_data();
    void editorLoadsAndSavesEveryProperty();
    void containerTakesFurtherPages_data();
    void containerTakesFurtherPages();
    void sectionHoldsOneWidget();
    void makingThemAllInTheEditorOpensNothing();

private:
    QDesignerFormWindowInterface* open(const QByteArray& xml);
    QWidget* child(const QString& name) const;

    std::unique_ptr<QDesignerFormEditorInterface> m_core;
    std::unique_ptr<QWidget> m_window; // the editor's own, hidden: its panels go before it
    QWidgetList m_ownWindows;
    QDesignerFormWindowInterface* m_form = nullptr;
};

void TestDesignerEditor::initTestCase()
{
    // Before the editor asks for the widgets. Only this plugin: others may say what they like.
    QCoreApplication::setLibraryPaths({ QStringLiteral(PLUGINS_FOLDER) });
    m_window = std::make_unique<QWidget>();
    QDesignerComponents::initializeResources();
    m_core.reset(QDesignerComponents::createFormEditor(nullptr));
    m_core->setTopLevel(m_window.get());
    m_core->setWidgetBox(QDesignerComponents::createWidgetBox(m_core.get(), m_window.get()));
    m_core->setPropertyEditor(
        QDesignerComponents::createPropertyEditor(m_core.get(), m_window.get()));
    m_core->setObjectInspector(
        QDesignerComponents::createObjectInspector(m_core.get(), m_window.get()));
    m_core->setActionEditor(QDesignerComponents::createActionEditor(m_core.get(), m_window.get()));
    new QDesignerIntegration(m_core.get(), m_core.get());
    QDesignerComponents::initializePlugins(m_core.get());
    QDesignerComponents::createTaskMenu(m_core.get(), m_window.get());
    m_ownWindows = QApplication::topLevelWidgets();
}

void TestDesignerEditor::cleanupTestCase()
{
    m_window.reset();
    m_core.reset();
}

void TestDesignerEditor::cleanup()
{
    // The form of the test; the editor keeps its menus and panels.
    delete m_form;
    m_form = nullptr;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QWidgetList leftOver = QApplication::topLevelWidgets();
    for (const QWidget* widget : leftOver) {
        QVERIFY(m_ownWindows.contains(widget));
    }
}

QDesignerFormWindowInterface* TestDesignerEditor::open(const QByteArray& xml)
{
    delete m_form;
    m_form = m_core->formWindowManager()->createFormWindow(m_window.get());
    if (!m_form->setContents(QString::fromUtf8(xml))) {
        qWarning() << "not a form:" << xml;
    }
    return m_form;
}

QWidget* TestDesignerEditor::child(const QString& name) const
{
    return m_form->findChild<QWidget*>(name);
}

void TestDesignerEditor::boxOffersEveryWidget()
{
    QDesignerWidgetBoxInterface* box = m_core->widgetBox();
    QStringList offered;
    for (int category = 0; category < box->categoryCount(); ++category) {
        if (box->category(category).name().startsWith(QStringLiteral("Utility Widgets: "))) {
            for (int i = 0; i < box->widgetCount(category); ++i) {
                offered.append(box->widget(category, i).name());
            }
        }
    }
    for (const QDesignerCustomWidgetInterface* entry : formWidgetTable()) {
        QVERIFY2(offered.removeOne(entry->name()), qPrintable(entry->name()));
    }
    QVERIFY2(offered.isEmpty(), qPrintable(offered.join(QLatin1Char(' '))));
}

void TestDesignerEditor::widgetOfTheBoxIsSavedAsItself_data()
{
    addRowPerFormWidget();
}

void TestDesignerEditor::widgetOfTheBoxIsSavedAsItself()
{
    QFETCH(int, index);
    const QDesignerCustomWidgetInterface* entry = formWidgetTable().at(index);
    open(formOfBox(*entry));
    const QWidget* widget = child(nameInForm(*entry));
    QVERIFY(widget != nullptr);
    QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), entry->name());

    const QString saved = m_form->contents();
    QDomDocument document;
    QVERIFY(document.setContent(saved));
    const QDomElement ui = document.documentElement();
    const QDomElement element =
        ui.firstChildElement(QStringLiteral("widget")).firstChildElement(QStringLiteral("widget"));
    QCOMPARE(element.attribute(QStringLiteral("class")), entry->name());
    const QDomElement used = ui.firstChildElement(QStringLiteral("customwidgets"))
                                 .firstChildElement(QStringLiteral("customwidget"));
    QCOMPARE(used.firstChildElement(QStringLiteral("header")).text(), entry->includeFile());
    QVERIFY(used.firstChildElement(QStringLiteral("extends")).text().startsWith(QLatin1Char('Q')));
    // What the widget is made of inside is nobody's to save; what the box put into it is.
    const int children = element.elementsByTagName(QStringLiteral("widget")).count();
    QCOMPARE(children, entry->domXml().count(QStringLiteral("<widget ")) - 1);
    // The same again, so nothing is lost and nothing grows.
    open(saved.toUtf8());
    QCOMPARE(m_form->contents(), saved);
}

void TestDesignerEditor::editorLoadsAndSavesEveryProperty_data()
{
    addRowPerFormWidget();
}

void TestDesignerEditor::editorLoadsAndSavesEveryProperty()
{
    QFETCH(int, index);
    QDesignerCustomWidgetInterface* entry = formWidgetTable().at(index);
    const std::unique_ptr<QWidget> meant(entry->createWidget(nullptr));
    for (const PropertyCase& test : propertyCases()) {
        if (QLatin1String(test.className) == entry->name() && test.designable) {
            QVERIFY(meant->setProperty(test.property, test.other));
        }
    }
    open(formOf(QStringLiteral("<widget class=\"%1\" name=\"subject\">%2</widget>")
                    .arg(entry->name(), otherValuesXml(entry->name(), *meant->metaObject()))));
    open(m_form->contents().toUtf8());

    QWidget* widget = child(QStringLiteral("subject"));
    QVERIFY(widget != nullptr);
    auto* sheet =
        qt_extension<QDesignerPropertySheetExtension*>(m_core->extensionManager(), widget);
    for (const PropertyCase& test : propertyCases()) {
        if (QLatin1String(test.className) == entry->name()) {
            const int property = sheet->indexOf(QString::fromLatin1(test.property));
            QVERIFY2(property >= 0, test.property);
            QCOMPARE(sheet->isVisible(property), test.designable);
            QCOMPARE(sheet->isChanged(property), test.designable);
            if (test.designable) {
                QCOMPARE(widget->property(test.property), meant->property(test.property));
            }
        }
    }
}

void TestDesignerEditor::containerTakesFurtherPages_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<int>("made");
    QTest::newRow("ToolBoxContainer") << QStringLiteral("ToolBoxContainer") << 1;
    QTest::newRow("FileMenuWidget") << QStringLiteral("FileMenuWidget") << 2;
}

void TestDesignerEditor::containerTakesFurtherPages()
{
    QFETCH(QString, className);
    QFETCH(int, made);
    for (QDesignerCustomWidgetInterface* entry : formWidgetTable()) {
        if (entry->name() != className) {
            continue;
        }
        open(formOfBox(*entry));
        auto* pages = qt_extension<QDesignerContainerExtension*>(m_core->extensionManager(),
                                                                 child(nameInForm(*entry)));
        QVERIFY(pages != nullptr);
        QCOMPARE(pages->count(), made);
        QVERIFY(pages->canAddWidget());
        QWidget* first = pages->widget(0);

        auto* front = new QWidget;
        pages->insertWidget(0, front);
        QCOMPARE(pages->count(), made + 1);
        QCOMPARE(pages->widget(0), front);
        QCOMPARE(pages->widget(1), first);
        QCOMPARE(pages->currentIndex(), 0);
        auto* last = new QWidget;
        pages->addWidget(last);
        QCOMPARE(pages->widget(made + 1), last);
        QCOMPARE(pages->currentIndex(), made + 1);
        QVERIFY(front->isVisibleTo(child(nameInForm(*entry))));

        pages->remove(0);
        delete front;
        QCOMPARE(pages->count(), made + 1);
        QCOMPARE(pages->widget(0), first);
        QVERIFY(!pages->canRemove(made + 1));
        QCOMPARE(pages->widget(made + 1), nullptr);
        pages->setCurrentIndex(0);
        QCOMPARE(pages->currentIndex(), 0);
        return;
    }
    QFAIL("no such entry");
}

void TestDesignerEditor::sectionHoldsOneWidget()
{
    for (QDesignerCustomWidgetInterface* entry : formWidgetTable()) {
        if (entry->name() != QStringLiteral("OxCollapsibleWidgetContainer")) {
            continue;
        }
        open(formOfBox(*entry));
        auto* pages = qt_extension<QDesignerContainerExtension*>(m_core->extensionManager(),
                                                                 child(nameInForm(*entry)));
        QVERIFY(pages != nullptr);
        QCOMPARE(pages->count(), 1);
        QVERIFY(!pages->canAddWidget());
        const std::unique_ptr<QWidget> content(pages->widget(0));
        pages->remove(0);
        QCOMPARE(pages->count(), 0);
        QCOMPARE(pages->currentIndex(), -1);
        QVERIFY(pages->canAddWidget());
        return;
    }
    QFAIL("no such entry");
}

void TestDesignerEditor::makingThemAllInTheEditorOpensNothing()
{
    // A library that the menu of symbols would read, were it not in an editor.
    const QTemporaryDir folder;
    QFile library(folder.filePath(QStringLiteral("symbols.db")));
    QVERIFY(library.open(QIODevice::WriteOnly));
    library.write("no database");
    library.close();
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    for (QDesignerCustomWidgetInterface* entry : formWidgetTable()) {
        QVERIFY2(entry->isInitialized(), qPrintable(entry->name()));
        open(formOfBox(*entry)); // an attempt to read the library would be a warning in the log
    }
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(QSqlDatabase::connectionNames().isEmpty());
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList(QStringLiteral("symbols.db")));
    QVERIFY(QDir(qEnvironmentVariable("XDG_RUNTIME_DIR")).isEmpty());
}

UW_TEST_MAIN(TestDesignerEditor)

#include "tst_designereditor.moc"
