// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// The help for Qt Assistant, as Assistant's own engine reads it.

#include "support/test.h"

#include <QHelpEngineCore>
#include <QHelpLink>
#include <QRegularExpression>

class TestAssistantHelp : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void assistantRegistersIt();
    void everyClassIsFoundByItsName_data();
    void everyClassIsFoundByItsName();
    void everyGuideIsInIt();

private:
    QUrl page(const QString& name) const;

    const QTemporaryDir m_folder;
    QHelpEngineCore m_engine { m_folder.filePath(QStringLiteral("help.qhc")) };
};

void TestAssistantHelp::assistantRegistersIt()
{
    const QString help = QStringLiteral(HELP_FILE);
    const QString name = QStringLiteral(HELP_NAMESPACE);
    m_engine.setReadOnly(false);
    QVERIFY2(m_engine.setupData(), qPrintable(m_engine.error()));
    QVERIFY2(m_engine.registerDocumentation(help), qPrintable(m_engine.error()));
    QCOMPARE(m_engine.registeredDocumentations(), QStringList { name });
    QCOMPARE(QHelpEngineCore::namespaceName(help), name);
    QVERIFY(!m_engine.fileData(page(QStringLiteral("index.html"))).isEmpty());
}

void TestAssistantHelp::everyClassIsFoundByItsName_data()
{
    QTest::addColumn<QString>("name");
    const QStringList classes = QStringLiteral(CLASSES).split(QLatin1Char(','));
    for (const QString& name : classes) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

/// With its picture, and every other that its page shows.
void TestAssistantHelp::everyClassIsFoundByItsName()
{
    QFETCH(const QString, name);
    const QUrl url = page(QStringLiteral("class%1.html").arg(name));
    bool found = false;
    const QList<QHelpLink> links = m_engine.documentsForKeyword(name);
    for (const QHelpLink& link : links) {
        found |= link.url.adjusted(QUrl::RemoveFragment) == url;
    }
    QVERIFY(found);

    const QString text = QString::fromUtf8(m_engine.fileData(url));
    static const QRegularExpression picture(
        QStringLiteral("<div class=\"image\"><img src=\"([^\"]+)\" alt=\"([^\"]+)\""));
    QRegularExpressionMatchIterator pictures = picture.globalMatch(text);
    QVERIFY(pictures.hasNext());
    while (pictures.hasNext()) {
        const QString file = pictures.next().captured(1);
        QVERIFY2(m_engine.fileData(page(file)).startsWith("\x89PNG"), qPrintable(file));
    }
}

void TestAssistantHelp::everyGuideIsInIt()
{
    const QString index = QString::fromUtf8(m_engine.fileData(page(QStringLiteral("index.html"))));
    static const QRegularExpression link(
        QStringLiteral("href=\"(page_(?!\\w+_protocol)[^\"#]+)\""));
    QSet<QString> guides;
    QRegularExpressionMatchIterator links = link.globalMatch(index);
    while (links.hasNext()) {
        const QString guide = links.next().captured(1);
        guides.insert(guide);
        QVERIFY2(!m_engine.fileData(page(guide)).isEmpty(), qPrintable(guide));
    }
    QCOMPARE(guides.count(), GUIDES);
}

/// The address of a page of the help.
QUrl TestAssistantHelp::page(const QString& name) const
{
    return QUrl(QStringLiteral("qthelp://" HELP_NAMESPACE "/" HELP_FOLDER "/") + name);
}

UW_TEST_MAIN(TestAssistantHelp)

#include "tst_assistanthelp.moc"
