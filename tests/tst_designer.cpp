// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "publicclasses.h"
#include "support/formtexts.h"
#include "support/propertycases.h"
#include "support/test.h"
#include "support/ui_everywidget.h"

#include <QApplication>
#include <QBuffer>
#include <QColor>
#include <QDir>
#include <QDomDocument>
#include <QImage>
#include <QLayout>
#include <QMap>
#include <QMetaProperty>
#include <QSet>
#include <QSqlDatabase>
#include <QUiLoader>
#include <QtDesigner/QFormBuilder>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <limits>
#include <memory>

namespace {

/// Widgets that no form can hold, and why.
const QMap<QString, QString>& exceptions()
{
    const QString window = QStringLiteral("a window of its own");
    static const QMap<QString, QString> reasons {
        { QStringLiteral("ContainerDialog"), window },
        { QStringLiteral("DatabaseSaveWidget"), window },
        { QStringLiteral("DatabaseSelectorDialog"), window },
        { QStringLiteral("MultiItemSelectionDialog"), window },
        { QStringLiteral("OxFileDialog"), window },
        { QStringLiteral("OxHelpWindow"), window },
        { QStringLiteral("OxInfoWidget"), window },
        { QStringLiteral("OxInputDialog"), window },
        { QStringLiteral("OxMessageBox"), window },
        { QStringLiteral("SymbolDatabaseWidget"), window },
        { QStringLiteral("OxTransparentContainer"),
          QStringLiteral("shows a second window that dims the screen as soon as it is made") },
        { QStringLiteral("OxTransparentOverlay"), window },
    };
    return reasons;
}

/// What a form changes of a widget: everything that can be edited and is not about its window.
QList<QMetaProperty> editableProperties(const QMetaObject& meta)
{
    static const QSet<QByteArray> ofEveryWidget { "enabled",   "minimumSize",    "toolTip",
                                                  "whatsThis", "accessibleName", "mouseTracking" };
    // These depend on others, and Qt's form builder writes in no order.
    static const QSet<QByteArray> dependent { "checked",       "currentText", "cursorPosition",
                                              "documentTitle", "minimum",     "html",
                                              "inputMask",     "markdown",    "sliderPosition" };
    QList<QMetaProperty> properties;
    for (int i = 0; i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        const bool ofQWidget = i < QWidget::staticMetaObject.propertyCount();
        if (property.isDesignable() && property.isWritable() && property.isStored()
            && !dependent.contains(property.name())
            && (!ofQWidget || ofEveryWidget.contains(property.name()))) {
            properties.append(property);
        }
    }
    return properties;
}

/// A value unlike `value`; invalid for kinds that no form of these tests sets.
QVariant otherThan(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return !value.toBool();
    case QMetaType::Int:
        return value.toInt() < 1000 ? value.toInt() + 3 : 7;
    case QMetaType::Double:
        return value.toDouble() + 1.5;
    case QMetaType::QString:
        return QStringLiteral("word");
    case QMetaType::QStringList:
        return QStringList { QStringLiteral("red"), QStringLiteral("blue") };
    case QMetaType::QColor:
        return QColor(1, 2, 3);
    case QMetaType::QSize:
        return QSize(41, 42);
    default:
        return {};
    }
}

/// Sets every property that a form can set to another value, as far as the widget takes it. The
/// names of those that did change.
QList<QByteArray> changeEverything(QWidget& widget)
{
    const QMetaObject& meta = *widget.metaObject();
    QMap<QByteArray, QVariant> before;
    for (const QMetaProperty& property : editableProperties(meta)) {
        if (otherThan(property.read(&widget)).isValid()) {
            before.insert(property.name(), property.read(&widget));
        }
    }
    for (const QMetaProperty& property : editableProperties(meta)) {
        const QVariant other = otherThan(property.read(&widget));
        if (other.isValid()) {
            property.write(&widget, other);
        }
    }
    QList<QByteArray> changed;
    for (auto it = before.cbegin(); it != before.cend(); ++it) {
        if (widget.property(it.key().constData()) != it.value()) {
            changed.append(it.key());
        }
    }
    return changed;
}

/// Writes the children of the form without the parts that they are made of themselves.
class FormWriter : public QFormBuilder
{
public:
    QByteArray write(QWidget* widget)
    {
        m_form = widget;
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        save(&buffer, widget);
        return buffer.data();
    }

protected:
    using QFormBuilder::createDom;
    DomWidget* createDom(QWidget* widget, DomWidget* parent, bool recursive) override
    {
        return QFormBuilder::createDom(widget, parent, recursive && widget == m_form);
    }

    /// Only what the test changes, and no enumerations: Qt's form builder cannot write those, and
    /// warns of each. The editor can.
    bool checkProperty(QObject* object, const QString& name) const override
    {
        return name == QStringLiteral("objectName") || name == QStringLiteral("geometry")
            || otherThan(object->property(name.toLatin1().constData())).isValid();
    }

private:
    QWidget* m_form = nullptr;
};

std::unique_ptr<QWidget> loaded(QByteArray form)
{
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QStringLiteral(PLUGINS_FOLDER "/designer"));
    QBuffer buffer(&form);
    buffer.open(QIODevice::ReadOnly);
    std::unique_ptr<QWidget> widget(loader.load(&buffer));
    if (widget == nullptr) {
        qWarning() << loader.errorString();
    }
    return widget;
}

QWidget* child(const std::unique_ptr<QWidget>& form, const QString& name)
{
    return form != nullptr ? form->findChild<QWidget*>(name) : nullptr;
}

} // namespace

class TestDesigner : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void tableHoldsEveryWidgetOrSaysWhyNot();
    void tableHoldsEachClassOnce();
    void entryExplainsItself_data();
    void entryExplainsItself();
    void everyIconIsAnother();
    void includeFileIsThePublicHeader_data();
    void includeFileIsThePublicHeader();
    void widgetIsMadeWithAParentAlone_data();
    void widgetIsMadeWithAParentAlone();
    void boxMakesAWidgetThatAFingerHits_data();
    void boxMakesAWidgetThatAFingerHits();
    void loaderKnowsEveryClass();
    void loaderSetsEveryPropertyOfTheLibrary_data();
    void loaderSetsEveryPropertyOfTheLibrary();
    void loaderSurvivesExtremeValues_data();
    void loaderSurvivesExtremeValues();
    void formBuilderSavesAndReloadsEveryProperty_data();
    void formBuilderSavesAndReloadsEveryProperty();
    void collapsibleContainerTakesItsContentFromAForm();
    void foldedContainerHidesItsContentFromAForm();
    void toolBoxContainerTakesItsPanelsFromAForm();
    void toolBoxIsAScrollAreaInAForm();
    void fileMenuTakesItsItemsFromAFormAndKeepsItsFrame();
    void framesAndGroupsTakeChildrenFromAForm_data();
    void framesAndGroupsTakeChildrenFromAForm();
    void makingThemAllLeavesNoFileAndNoDatabase();
    void generatedCodeMakesEveryWidget();
    void generatedCodeFillsContainers();
};

void TestDesigner::tableHoldsEveryWidgetOrSaysWhyNot()
{
    QStringList names;
    for (const QDesignerCustomWidgetInterface* entry : formWidgetTable()) {
        names.append(entry->name());
    }
    for (const PublicClass& publicClass : publicClasses()) {
        const QString name = QString::fromLatin1(publicClass.name);
        if (publicClass.isWidget) {
            QVERIFY2(names.removeOne(name) != exceptions().contains(name), publicClass.name);
        } else {
            QVERIFY2(!exceptions().contains(name), publicClass.name);
        }
    }
    QVERIFY2(names.isEmpty(), qPrintable(names.join(QLatin1Char(' '))));
}

void TestDesigner::tableHoldsEachClassOnce()
{
    QSet<QString> names;
    for (const QDesignerCustomWidgetInterface* entry : formWidgetTable()) {
        QVERIFY2(!names.contains(entry->name()), qPrintable(entry->name()));
        names.insert(entry->name());
    }
    QCOMPARE(names.size(), 32);
}

void TestDesigner::entryExplainsItself_data()
{
    addRowPerFormWidget();
}

void TestDesigner::entryExplainsItself()
{
    QFETCH(int, index);
    const QDesignerCustomWidgetInterface* entry = formWidgetTable().at(index);
    QVERIFY(entry->group().startsWith(QStringLiteral("Utility Widgets: ")));
    QVERIFY(entry->toolTip().size() > 20);
    QVERIFY(!entry->toolTip().endsWith(QLatin1Char('.')));
    QVERIFY(entry->whatsThis().size() > entry->toolTip().size());
    QVERIFY(entry->whatsThis().endsWith(QLatin1Char('.')));
}

void TestDesigner::everyIconIsAnother()
{
    QList<QImage> pictures;
    for (const QDesignerCustomWidgetInterface* entry : formWidgetTable()) {
        const QImage picture = entry->icon().pixmap(22, 22).toImage();
        QVERIFY2(!picture.isNull(), qPrintable(entry->name()));
        QVERIFY2(!pictures.contains(picture), qPrintable(entry->name()));
        pictures.append(picture);
    }
}

void TestDesigner::includeFileIsThePublicHeader_data()
{
    addRowPerFormWidget();
}

void TestDesigner::includeFileIsThePublicHeader()
{
    QFETCH(int, index);
    const QDesignerCustomWidgetInterface* entry = formWidgetTable().at(index);
    QCOMPARE(entry->includeFile(), entry->name().toLower() + QStringLiteral(".h"));
    QDomDocument document;
    QVERIFY(document.setContent(entry->domXml()));
    const QDomElement widget =
        document.documentElement().firstChildElement(QStringLiteral("widget"));
    QCOMPARE(widget.attribute(QStringLiteral("class")), entry->name());
    // A member named as its class is an error in C++.
    QCOMPARE(widget.attribute(QStringLiteral("name")), nameInForm(*entry));
    QVERIFY(nameInForm(*entry) != entry->name());
}

void TestDesigner::widgetIsMadeWithAParentAlone_data()
{
    addRowPerFormWidget();
}

void TestDesigner::widgetIsMadeWithAParentAlone()
{
    QFETCH(int, index);
    QWidget parent;
    QWidget* widget = formWidgetTable().at(index)->createWidget(&parent);
    QCOMPARE(widget->parentWidget(), &parent);
    QVERIFY(!widget->isWindow());
    QCOMPARE(QString::fromLatin1(widget->metaObject()->className()),
             formWidgetTable().at(index)->name());
    parent.show();
    QVERIFY(widget->isVisible());
}

void TestDesigner::boxMakesAWidgetThatAFingerHits_data()
{
    addRowPerFormWidget();
}

void TestDesigner::boxMakesAWidgetThatAFingerHits()
{
    QFETCH(int, index);
    const QDesignerCustomWidgetInterface* entry = formWidgetTable().at(index);
    const std::unique_ptr<QWidget> form = loaded(formOfBox(*entry));
    const QWidget* widget = child(form, nameInForm(*entry));
    QVERIFY(widget != nullptr);
    QVERIFY2(widget->height() >= 35, qPrintable(QString::number(widget->height())));
    QVERIFY(widget->width() >= 35);
    QVERIFY(widget->width() <= 1024);
    QVERIFY(widget->height() <= 540);
}

void TestDesigner::loaderKnowsEveryClass()
{
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QStringLiteral(PLUGINS_FOLDER "/designer"));
    const QStringList available = loader.availableWidgets();
    for (const QDesignerCustomWidgetInterface* entry : formWidgetTable()) {
        QVERIFY2(available.contains(entry->name()), qPrintable(entry->name()));
    }
}

void TestDesigner::loaderSetsEveryPropertyOfTheLibrary_data()
{
    addRowPerFormWidget();
}

void TestDesigner::loaderSetsEveryPropertyOfTheLibrary()
{
    QFETCH(int, index);
    QDesignerCustomWidgetInterface* entry = formWidgetTable().at(index);
    const std::unique_ptr<QWidget> meant(entry->createWidget(nullptr));
    for (const PropertyCase& test : propertyCases()) {
        if (QString::fromLatin1(test.className) == entry->name() && test.designable) {
            QVERIFY(meant->setProperty(test.property, test.other));
        }
    }
    const QString properties = otherValuesXml(entry->name(), *meant->metaObject());

    const std::unique_ptr<QWidget> form =
        loaded(formOf(QStringLiteral("<widget class=\"%1\" name=\"subject\">%2</widget>")
                          .arg(entry->name(), properties)));
    const QWidget* subject = child(form, QStringLiteral("subject"));
    QVERIFY(subject != nullptr);
    QCOMPARE(QString::fromLatin1(subject->metaObject()->className()), entry->name());
    for (const PropertyCase& test : propertyCases()) {
        if (QString::fromLatin1(test.className) == entry->name() && test.designable) {
            QCOMPARE(subject->property(test.property), meant->property(test.property));
        }
    }
}

void TestDesigner::loaderSurvivesExtremeValues_data()
{
    addRowPerFormWidget();
}

void TestDesigner::loaderSurvivesExtremeValues()
{
    QFETCH(int, index);
    QDesignerCustomWidgetInterface* entry = formWidgetTable().at(index);
    const std::unique_ptr<QWidget> example(entry->createWidget(nullptr));
    for (const int number :
         { std::numeric_limits<int>::min(), -1, 0, std::numeric_limits<int>::max() }) {
        QString properties =
            QStringLiteral("<property name=\"geometry\"><rect><x>0</x><y>0</y><width>-5</width>"
                           "<height>-5</height></rect></property>");
        for (const QMetaProperty& property : editableProperties(*example->metaObject())) {
            const bool isTheLibrarys =
                !QByteArray(property.enclosingMetaObject()->className()).startsWith('Q');
            const bool isOfASlider = QByteArray(property.enclosingMetaObject()->className())
                == QByteArray("QAbstractSlider");
            if (property.typeId() == QMetaType::Int && (isTheLibrarys || isOfASlider)) {
                properties += formXml(property, number);
            } else if (property.typeId() == QMetaType::QStringList && isTheLibrarys) {
                properties += formXml(property, QStringList { QString(), QStringLiteral("}{;#") });
            }
        }
        const std::unique_ptr<QWidget> form =
            loaded(formOf(QStringLiteral("<widget class=\"%1\" name=\"subject\">%2</widget>")
                              .arg(entry->name(), properties)));
        QWidget* subject = child(form, QStringLiteral("subject"));
        QVERIFY(subject != nullptr);
        subject->resize(300, 200);
        form->show();
        form->grab();
    }
}

void TestDesigner::formBuilderSavesAndReloadsEveryProperty_data()
{
    addRowPerFormWidget();
}

void TestDesigner::formBuilderSavesAndReloadsEveryProperty()
{
    QFETCH(int, index);
    QDesignerCustomWidgetInterface* entry = formWidgetTable().at(index);
    QWidget form;
    QWidget* meant = entry->createWidget(&form);
    meant->setObjectName(QStringLiteral("subject"));
    const QList<QByteArray> changed = changeEverything(*meant);
    QVERIFY(changed.contains("enabled"));
    QVERIFY(changed.contains("toolTip"));

    FormWriter writer;
    const std::unique_ptr<QWidget> reloaded = loaded(writer.write(&form));
    const QWidget* subject = child(reloaded, QStringLiteral("subject"));
    QVERIFY(subject != nullptr);
    QCOMPARE(QString::fromLatin1(subject->metaObject()->className()), entry->name());
    for (const QByteArray& property : changed) {
        QVERIFY2(subject->property(property.constData()) == meant->property(property.constData()),
                 property.constData());
    }
}

namespace {

QString panelXml(const char* name)
{
    return QStringLiteral("<widget class=\"QWidget\" name=\"%1\"><property name=\"minimumSize\">"
                          "<size><width>90</width><height>50</height></size></property></widget>")
        .arg(QLatin1String(name));
}

std::unique_ptr<QWidget> loadedContainer(const char* className, const QString& content)
{
    const QString name = QString::fromLatin1(className);
    return loaded(formOf(
        QStringLiteral("<widget class=\"%1\" name=\"subject\">%2</widget>").arg(name, content),
        customWidgetsOf(name)));
}

} // namespace

void TestDesigner::collapsibleContainerTakesItsContentFromAForm()
{
    const std::unique_ptr<QWidget> form =
        loadedContainer("OxCollapsibleWidgetContainer",
                        QStringLiteral("<property name=\"expanded\"><bool>true</bool></property>")
                            + panelXml("inside"));
    auto* subject =
        qobject_cast<OxCollapsibleWidgetContainer*>(child(form, QStringLiteral("subject")));
    QVERIFY(subject != nullptr);
    QVERIFY(subject->getContainedWidget() != nullptr);
    QCOMPARE(subject->getContainedWidget()->objectName(), QStringLiteral("inside"));
    form->show();
    QVERIFY(subject->getContainedWidget()->isVisible());
}

void TestDesigner::foldedContainerHidesItsContentFromAForm()
{
    const std::unique_ptr<QWidget> form =
        loadedContainer("OxCollapsibleWidgetContainer", panelXml("inside"));
    form->show();
    const QWidget* inside = child(form, QStringLiteral("inside"));
    QVERIFY(inside != nullptr);
    QVERIFY(inside->isHidden());
}

void TestDesigner::toolBoxContainerTakesItsPanelsFromAForm()
{
    const std::unique_ptr<QWidget> form = loadedContainer(
        "ToolBoxContainer",
        QStringLiteral("<property name=\"columnWidth\"><number>180</number></property>"
                       "<property name=\"panelSpacing\"><number>9</number></property>")
            + panelXml("one") + panelXml("two"));
    auto* subject = qobject_cast<ToolBoxContainer*>(child(form, QStringLiteral("subject")));
    QVERIFY(subject != nullptr);
    QCOMPARE(subject->columnWidth(), 180);
    const QLayout* column = subject->getToolBox()->widget()->layout();
    QCOMPARE(column->spacing(), 9);
    QCOMPARE(column->count(), 2);
    QCOMPARE(column->itemAt(0)->widget()->objectName(), QStringLiteral("one"));
    QCOMPARE(column->itemAt(1)->widget()->objectName(), QStringLiteral("two"));
}

void TestDesigner::toolBoxIsAScrollAreaInAForm()
{
    const std::unique_ptr<QWidget> form = loadedContainer("ToolBox", panelXml("inside"));
    auto* subject = qobject_cast<ToolBox*>(child(form, QStringLiteral("subject")));
    QVERIFY(subject != nullptr);
    QVERIFY(subject->widget() != nullptr);
    QCOMPARE(subject->widget()->objectName(), QStringLiteral("inside"));
}

void TestDesigner::fileMenuTakesItsItemsFromAFormAndKeepsItsFrame()
{
    const std::unique_ptr<QWidget> form =
        loadedContainer("FileMenuWidget", panelXml("one") + panelXml("two"));
    const QWidget* subject = child(form, QStringLiteral("subject"));
    QVERIFY(subject != nullptr);
    QCOMPARE(subject->layout()->count(), 2);
    QCOMPARE(subject->layout()->itemAt(1)->widget()->objectName(), QStringLiteral("two"));
    QVERIFY(subject->styleSheet().startsWith(QStringLiteral("#subject {")));
    form->resize(300, 300);
    child(form, QStringLiteral("subject"))->setGeometry(0, 0, 200, 200);
    QCOMPARE(form->grab().toImage().pixelColor(0, 100), QColor(0xfd, 0x78, 0x00));
}

void TestDesigner::framesAndGroupsTakeChildrenFromAForm_data()
{
    QTest::addColumn<QByteArray>("className");
    for (const char* name : { "ClickableFrame", "DragScrollGroupBox", "OxFrame" }) {
        QTest::newRow(name) << QByteArray(name);
    }
}

void TestDesigner::framesAndGroupsTakeChildrenFromAForm()
{
    QFETCH(QByteArray, className);
    const std::unique_ptr<QWidget> form =
        loadedContainer(className.constData(),
                        QStringLiteral("<layout class=\"QVBoxLayout\"><item>%1</item></layout>")
                            .arg(panelXml("inside")));
    const QWidget* subject = child(form, QStringLiteral("subject"));
    QVERIFY(subject != nullptr);
    QVERIFY(subject->layout() != nullptr);
    QCOMPARE(subject->layout()->itemAt(0)->widget()->objectName(), QStringLiteral("inside"));
}

void TestDesigner::makingThemAllLeavesNoFileAndNoDatabase()
{
    const QTemporaryDir folder;
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    for (QDesignerCustomWidgetInterface* entry : formWidgetTable()) {
        const std::unique_ptr<QWidget> form = loaded(formOfBox(*entry));
        form->show();
    }
    const QStringList left = QDir(folder.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries);
    QVERIFY(QDir::setCurrent(before));
    QVERIFY2(left.isEmpty(), qPrintable(left.join(QLatin1Char(' '))));
    QVERIFY(QSqlDatabase::connectionNames().isEmpty());
    QVERIFY(QDir(qEnvironmentVariable("XDG_RUNTIME_DIR")).isEmpty());
    QVERIFY(QDir(qEnvironmentVariable("HOME")).isEmpty());
}

void TestDesigner::generatedCodeMakesEveryWidget()
{
    QWidget form;
    Ui::EveryWidget ui;
    ui.setupUi(&form);
    for (const PublicClass& publicClass : publicClasses()) {
        const QString name = QString::fromLatin1(publicClass.name);
        if (publicClass.isWidget && !exceptions().contains(name)) {
            const QString member = name.at(0).toLower() + name.mid(1);
            QVERIFY2(form.findChild<QWidget*>(member) != nullptr, publicClass.name);
        }
    }
    OxPlainTextEdit* named = ui.oxPlainTextEdit; // of the very class
    QCOMPARE(named->toPlainText(), QStringLiteral("Notes"));
    QCOMPARE(ui.oxTitleBar->title(), QStringLiteral("Title"));
    QCOMPARE(ui.oxSlider->showText(), OxSlider::AllText);
    QCOMPARE(ui.lineLabel->lineType(), LineLabel::LineRight);
    QCOMPARE(ui.lineLabel->lineColor(), QColor(253, 120, 0));
    // Set by name, because the setter is not called as the property is.
    QCOMPARE(ui.navigationBar->lastRecord(), 11);
    QCOMPARE(ui.navigationBar->searchByTerms(),
             QStringList({ QStringLiteral("Name"), QStringLiteral("City") }));
    QCOMPARE(ui.colorMenu->selectedColor(), QStringLiteral("#fd7800"));
    QVERIFY(ui.lockWidget->readOnlyState());
    QVERIFY(ui.dragScrollTableView->isHorizontalMovementEnabled());
}

void TestDesigner::generatedCodeFillsContainers()
{
    QWidget form;
    Ui::EveryWidget ui;
    ui.setupUi(&form);
    QCOMPARE(ui.oxCollapsibleWidgetContainer->getContainedWidget(), ui.content);
    QVERIFY(!ui.content->isHidden());
    QCOMPARE(ui.toolBoxContainer->getToolBox()->widget()->layout()->itemAt(0)->widget(), ui.panel);
    QCOMPARE(ui.toolBox->widget(), ui.column);
    QCOMPARE(ui.fileMenuWidget->layout()->count(), 2);
    QCOMPARE(ui.firstItem->parentWidget(), ui.fileMenuWidget);
}

UW_TEST_MAIN(TestDesigner)

#include "tst_designer.moc"
