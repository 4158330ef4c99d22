// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "publicclasses.h"
#include "support/propertycases.h"
#include "support/test.h"

#include <QApplication>
#include <QFile>
#include <QMap>
#include <QMetaProperty>
#include <QRegularExpression>
#include <QSet>
#include <QSignalSpy>

namespace {

struct Setter
{
    QString name;
    QString parameterType;
};

/// Setters that no property is made of, and why.
const QMap<QString, QString>& exceptions()
{
    static const QMap<QString, QString> reasons {
        { QStringLiteral("OxInputDialog::setTextLayout"),
          QStringLiteral("lays the dialog out, once; the text is what the person enters") },
        { QStringLiteral("OxMessageBox::setDefaultButton"),
          QStringLiteral("chooses among buttons that are added in the code") },
        { QStringLiteral("SymbolDatabaseModel::setLockTimeout"),
          QStringLiteral("is for whoever opens the library, and a form has no such model") },
        { QStringLiteral("SymbolDatabaseWidget::setInsertMode"),
          QStringLiteral("there is a third state, before it is called") },
    };
    return reasons;
}

QString headerOf(const QString& className)
{
    const QString name = className.toLower() + QStringLiteral(".h");
    for (const char* folder : { "/widgets/", "/widgets_symbols/" }) {
        QFile file(QStringLiteral(PROJECT_FOLDER) + QLatin1String(folder) + name);
        if (file.open(QIODevice::ReadOnly)) {
            return QString::fromUtf8(file.readAll());
        }
    }
    return {};
}

/// The declarations of the class without comments.
QString declarations(const QString& className)
{
    QString text = headerOf(className);
    text.remove(QRegularExpression(QStringLiteral("/\\*.*?\\*/"),
                                   QRegularExpression::DotMatchesEverythingOption));
    text.remove(QRegularExpression(QStringLiteral("//[^\\n]*")));
    const QRegularExpression head(
        QStringLiteral("class UTILITYWIDGETS_EXPORT %1\\b").arg(className));
    text = text.mid(text.indexOf(head));
    // What is not public is nothing for a form.
    return text.remove(QRegularExpression(
        QStringLiteral("\\n(private|protected)[^\\n]*:\\n.*?(?=\\n(public|Q_SIGNALS|\\};))"),
        QRegularExpression::DotMatchesEverythingOption));
}

/// What a form writes: simple values, and whatever the header itself enumerates.
bool isFormKind(const QString& type, const QString& header)
{
    static const QStringList kinds { QStringLiteral("bool"),    QStringLiteral("int"),
                                     QStringLiteral("double"),  QStringLiteral("QString"),
                                     QStringLiteral("QColor"),  QStringLiteral("QIcon"),
                                     QStringLiteral("QPixmap"), QStringLiteral("QSize"),
                                     QStringLiteral("QFont"),   QStringLiteral("QStringList") };
    const QString last = type.section(QStringLiteral("::"), -1);
    return kinds.contains(type) || type.startsWith(QStringLiteral("Qt::"))
        || type.startsWith(QStringLiteral("QMessageBox::"))
        || header.contains(QRegularExpression(QStringLiteral("\\benum %1\\b").arg(last)));
}

QList<Setter> settersThatAFormCouldCall(const QString& className)
{
    const QString header = declarations(className);
    static const QRegularExpression setter(
        QStringLiteral("\\bvoid\\s+(set[A-Z]\\w*)\\s*\\(([^(),]+)\\)\\s*;"));
    QList<Setter> setters;
    QRegularExpressionMatchIterator matches = setter.globalMatch(header);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        QString type = match.captured(2).simplified();
        type.remove(QRegularExpression(QStringLiteral("^const |[&]|\\s*\\w+$")));
        type = type.simplified();
        if (isFormKind(type, header)) {
            setters.append({ match.captured(1), type });
        }
    }
    return setters;
}

/// The property of the class that is written by `setter`, as its header says.
QString propertyWrittenBy(const QString& className, const QString& setter)
{
    const QRegularExpression property(
        QStringLiteral("Q_PROPERTY\\(\\s*\\S+\\s+(\\w+)[^)]*\\bWRITE\\s+%1\\b").arg(setter));
    return property.match(declarations(className)).captured(1);
}

QString rowName(const PropertyCase& row)
{
    return QString::fromLatin1(row.className) + QStringLiteral("::") + QLatin1String(row.property);
}

QList<const QMetaObject*> metaObjects()
{
    QList<const QMetaObject*> all;
    for (const PublicClass& publicClass : publicClasses()) {
        if (publicClass.metaObject != nullptr) {
            all.append(publicClass.metaObject);
        }
    }
    return all;
}

} // namespace

class TestProperties : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void settersAreFoundInTheHeaders();
    void everySetterThatAFormCouldCallIsAProperty_data();
    void everySetterThatAFormCouldCallIsAProperty();
    void everyExceptionStillExistsAndHasAReason();
    void everyPropertyHasARowBelow();
    void propertyHasItsDefaultAndTakesAnotherValue_data();
    void propertyHasItsDefaultAndTakesAnotherValue();
    void propertiesThatAFormSetsAreDesignableAndStored_data();
    void propertiesThatAFormSetsAreDesignableAndStored();
    void enumerationsOfPropertiesAreKnownByName();
};

void TestProperties::settersAreFoundInTheHeaders()
{
    const auto names = [](const char* className) {
        QStringList found;
        for (const Setter& setter : settersThatAFormCouldCall(QString::fromLatin1(className))) {
            found.append(setter.name + QLatin1Char(' ') + setter.parameterType);
        }
        return found;
    };
    QCOMPARE(
        names("OxTitleBar"),
        QStringList({ QStringLiteral("setIconPath QString"), QStringLiteral("setTitle QString") }));
    QCOMPARE(names("OxSlider"), QStringList(QStringLiteral("setShowText OxSlider::ShowText")));
    QCOMPARE(names("OxIconItemDelegate"), QStringList(QStringLiteral("setFixedIconSize QSize")));
    // Neither a pointer nor two arguments are anything for a form.
    QCOMPARE(names("OxSingleInstanceApplication"), QStringList());
    QCOMPARE(names("ExpandingTabBar"), QStringList());
}

void TestProperties::everySetterThatAFormCouldCallIsAProperty_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("setter");
    for (const PublicClass& publicClass : publicClasses()) {
        const QString className = QString::fromLatin1(publicClass.name);
        QVERIFY2(!headerOf(className).isEmpty(), publicClass.name);
        for (const Setter& setter : settersThatAFormCouldCall(className)) {
            const QString name = className + QStringLiteral("::") + setter.name;
            QTest::newRow(qPrintable(name)) << className << setter.name;
        }
    }
}

void TestProperties::everySetterThatAFormCouldCallIsAProperty()
{
    QFETCH(QString, className);
    QFETCH(QString, setter);
    if (exceptions().contains(className + QStringLiteral("::") + setter)) {
        return;
    }
    const QByteArray property = propertyWrittenBy(className, setter).toLatin1();
    QVERIFY2(!property.isEmpty(), "add a Q_PROPERTY, or an exception with its reason");
    for (const QMetaObject* meta : metaObjects()) {
        if (className == QLatin1String(meta->className())) {
            const int index = meta->indexOfProperty(property.constData());
            QVERIFY(index >= meta->propertyOffset());
            QVERIFY(meta->property(index).isReadable());
            QVERIFY(meta->property(index).isWritable());
            return;
        }
    }
    QFAIL("the class has no meta-object");
}

void TestProperties::everyExceptionStillExistsAndHasAReason()
{
    QSet<QString> setters;
    for (const PublicClass& publicClass : publicClasses()) {
        const QString className = QString::fromLatin1(publicClass.name);
        for (const Setter& setter : settersThatAFormCouldCall(className)) {
            setters.insert(className + QStringLiteral("::") + setter.name);
        }
    }
    for (auto it = exceptions().begin(); it != exceptions().end(); ++it) {
        QVERIFY2(setters.contains(it.key()), qPrintable(it.key()));
        QVERIFY2(!it.value().isEmpty(), qPrintable(it.key()));
        const QString className = it.key().section(QLatin1Char(':'), 0, 0);
        QVERIFY2(propertyWrittenBy(className, it.key().section(QLatin1Char(':'), -1)).isEmpty(),
                 qPrintable(it.key()));
    }
}

void TestProperties::everyPropertyHasARowBelow()
{
    QSet<QString> rows;
    for (const PropertyCase& row : propertyCases()) {
        rows.insert(rowName(row));
    }
    // It takes only the name of a folder that exists: its own test makes one.
    rows.insert(QStringLiteral("OxHelpWindow::manualsFolderName"));
    for (const QMetaObject* meta : metaObjects()) {
        for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
            const QString name = QString::fromLatin1(meta->className()) + QStringLiteral("::")
                + QLatin1String(meta->property(i).name());
            QVERIFY2(rows.remove(name), qPrintable(name));
        }
    }
    QVERIFY2(rows.isEmpty(), qPrintable(rows.values().join(QLatin1Char(' '))));
}

void TestProperties::propertyHasItsDefaultAndTakesAnotherValue_data()
{
    QTest::addColumn<int>("row");
    const QList<PropertyCase> cases = propertyCases();
    for (int i = 0; i < cases.size(); ++i) {
        QTest::newRow(qPrintable(rowName(cases.at(i)))) << i;
    }
}

void TestProperties::propertyHasItsDefaultAndTakesAnotherValue()
{
    QFETCH(int, row);
    const PropertyCase test = propertyCases().at(row);
    const std::unique_ptr<QObject> subject = test.make();
    const QMetaObject* meta = subject->metaObject();
    const QMetaProperty property = meta->property(meta->indexOfProperty(test.property));
    QCOMPARE(subject->property(test.property), test.byDefault);

    std::unique_ptr<QSignalSpy> notified;
    if (property.hasNotifySignal()) {
        notified = std::make_unique<QSignalSpy>(subject.get(), property.notifySignal());
    }
    QVERIFY(subject->setProperty(test.property, test.other));
    QCOMPARE(subject->property(test.property), test.other);
    if (notified != nullptr) {
        QCOMPARE(notified->count(), 1);
    }
}

void TestProperties::propertiesThatAFormSetsAreDesignableAndStored_data()
{
    propertyHasItsDefaultAndTakesAnotherValue_data();
}

void TestProperties::propertiesThatAFormSetsAreDesignableAndStored()
{
    QFETCH(int, row);
    const PropertyCase test = propertyCases().at(row);
    const std::unique_ptr<QObject> subject = test.make();
    const QMetaObject* meta = subject->metaObject();
    const QMetaProperty property = meta->property(meta->indexOfProperty(test.property));
    QCOMPARE(property.isDesignable(), test.designable);
    QCOMPARE(property.isStored(), test.designable);
}

void TestProperties::enumerationsOfPropertiesAreKnownByName()
{
    int enumerations = 0;
    for (const QMetaObject* meta : metaObjects()) {
        for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
            const QMetaProperty property = meta->property(i);
            if (property.metaType().flags().testFlag(QMetaType::IsEnumeration)) {
                QVERIFY2(property.isEnumType(), property.name());
                ++enumerations;
            }
        }
    }
    QCOMPARE(enumerations, 2); // of LineLabel and OxSlider
}

UW_TEST_MAIN(TestProperties)

#include "tst_properties.moc"
