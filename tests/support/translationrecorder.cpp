// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "support/translationrecorder.h"

#include <QCoreApplication>

TranslationRecorder::TranslationRecorder(QByteArray context)
    : m_context(std::move(context))
{
    QCoreApplication::installTranslator(this);
}

TranslationRecorder::~TranslationRecorder()
{
    QCoreApplication::removeTranslator(this);
}

void TranslationRecorder::setTranslation(const QByteArray& text, const QString& translation)
{
    m_translations.insert(text, translation);
}

QString TranslationRecorder::translate(const char* context, const char* text, const char* comment,
                                       int number) const
{
    Q_UNUSED(number)
    if (m_context != context) {
        return {};
    }
    const QString entry =
        QString::fromUtf8(text) + QStringLiteral(" / ") + QString::fromUtf8(comment);
    if (!m_texts.contains(entry)) {
        m_texts.append(entry);
    }
    return m_translations.value(text);
}

#include "moc_translationrecorder.cpp"
