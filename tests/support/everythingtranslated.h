// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QTranslator>

/// Turns every text that is translated into "<translated>" for as long as it lives. What still
/// reads as before is not translated.
class EverythingTranslated
{
public:
    EverythingTranslated() { QCoreApplication::installTranslator(&m_translator); }
    ~EverythingTranslated() { QCoreApplication::removeTranslator(&m_translator); }

    Q_DISABLE_COPY_MOVE(EverythingTranslated)

    static QString text() { return QStringLiteral("<translated>"); }

private:
    class Translator : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }

        QString translate(const char* /*context*/, const char* /*source*/,
                          const char* /*disambiguation*/, int /*n*/) const override
        {
            return text();
        }
    };

    Translator m_translator;
};
