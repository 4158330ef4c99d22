// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "shippedlibrary.h"

#include "symboldatabasemodel.h"

#include <QCoreApplication>
#include <QDebug>
#include <QPointer>
#include <QThread>

namespace Gallery {

ShippedLibrary::ShippedLibrary(QObject* parent)
    : QObject(parent)
{ }

ShippedLibrary::~ShippedLibrary()
{
    if (m_thread != nullptr) {
        m_thread->wait();
    }
}

ShippedLibrary* ShippedLibrary::instance()
{
    static QPointer<ShippedLibrary> library;
    if (library == nullptr) {
        library = new ShippedLibrary(QCoreApplication::instance());
    }
    return library;
}

QString ShippedLibrary::path() const
{
    return m_folder.filePath(QStringLiteral("symbols.db"));
}

void ShippedLibrary::make()
{
    if (m_state != NotMade) {
        return;
    }
    m_state = BeingMade;
    m_thread.reset(QThread::create([this, path = path()] {
        SymbolDatabaseModel library;
        library.setDatabasePath(path);
        const bool isMade =
            library.createSchema() && library.updateDatabase(QStringLiteral(":/gallery/symbols"));
        library.close();
        QMetaObject::invokeMethod(this, [this, isMade] { finish(isMade); });
    }));
    m_thread->start();
}

void ShippedLibrary::finish(bool isMade)
{
    m_state = isMade ? Made : Failed;
    if (!isMade) {
        qWarning() << "The gallery cannot make its symbol library in" << m_folder.path();
    }
    Q_EMIT finished();
}

} // namespace Gallery

#include "moc_shippedlibrary.cpp"
