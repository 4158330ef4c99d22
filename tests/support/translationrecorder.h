// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QHash>
#include <QStringList>
#include <QTranslator>

/// Installed as a translator, remembers the texts of one class with their comments, and translates
/// what it is told to.
class TranslationRecorder : public QTranslator
{
    Q_OBJECT

public:
    explicit TranslationRecorder(QByteArray context);
    ~TranslationRecorder() override;

    void setTranslation(const QByteArray& text, const QString& translation);

    /// "text / comment" of everything that was translated so far, each once.
    QStringList texts() const { return m_texts; }

    QString translate(const char* context, const char* text, const char* comment,
                      int number) const override;
    bool isEmpty() const override { return false; }

private:
    QByteArray m_context;
    QHash<QByteArray, QString> m_translations;
    mutable QStringList m_texts;
};
