// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QTemporaryDir>

#include <memory>

class QThread;

namespace Gallery {

/*!
 * The symbol library that the gallery shows, made of the drawings that are compiled into it.
 *
 * It lies in a folder of this process, gone when that ends: so it works wherever the gallery is
 * installed, needs no folder of the device's, and is never older than the drawings.
 */
class ShippedLibrary : public QObject
{
    Q_OBJECT

public:
    /// The one of this process, which the application object owns.
    static ShippedLibrary* instance();

    ~ShippedLibrary() override;
    Q_DISABLE_COPY_MOVE(ShippedLibrary)

    /// The database, once it is made.
    QString path() const;
    bool isMade() const { return m_state == Made; }
    bool isBeingMade() const { return m_state == BeingMade; }
    /// Begins to make it, on a thread of its own, at the first call. There is no second attempt.
    void make();

Q_SIGNALS:
    /// It is made, or could not be made, of which the log tells.
    void finished();

private:
    enum State { NotMade, BeingMade, Made, Failed };

    explicit ShippedLibrary(QObject* parent);

    void finish(bool isMade);

    QTemporaryDir m_folder;
    std::unique_ptr<QThread> m_thread;
    State m_state = NotMade;
};

} // namespace Gallery
