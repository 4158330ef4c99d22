// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

// Linked into every program that is built with ThreadSanitizer. Qt is not: the sanitizer doesn't
// see that what happens before a call is queued happens before it is delivered in another thread,
// and would report each queued signal as a race. So it is told. Our own calls of the functions
// below arrive here first; Qt's calls of its own don't, and needn't.
//
// One marker stands for all queued calls, one for all threads that have ended and so on: threads
// look a little more in step than they are. What they do between two such calls is still checked.

#include <QCoreApplication>
#include <QEvent>
#include <QMetaObject>
#include <QThread>

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

namespace {

// Only their addresses count.
char queued;
char called;
char ended;

/// Stands before what QMetaObject::invokeMethod() is to call. Sender and receiver share it and one
/// of them destroys it, after a count that only Qt sees.
class Relay : public QtPrivate::QSlotObjectBase
{
public:
    explicit Relay(QtPrivate::QSlotObjectBase* slot)
        : QSlotObjectBase(&handle)
        , m_slot(slot)
    { }

private:
    static void handle(int which, QSlotObjectBase* self, QObject* receiver, void** arguments, bool*)
    {
        auto* relay = static_cast<Relay*>(self);
        if (which == Call) {
            relay->m_slot->call(receiver, arguments);
            __tsan_release(&called);
        } else if (which == Destroy) {
            __tsan_acquire(&called);
            relay->m_slot->destroyIfLastRef();
            delete relay;
        }
    }

    QSlotObjectBase* m_slot;
};

/// Whoever waits for this thread sees all that it did.
void watchEndOfThread()
{
    static thread_local bool watched = false;
    if (!watched) {
        watched = true;
        QThread* thread = QThread::currentThread();
        QObject::connect(
            thread, &QThread::finished, thread, [] { __tsan_release(&ended); },
            Qt::DirectConnection);
        __tsan_release(&ended); // its last event may be its first one
    }
}

bool aboutToDeliver(void** data)
{
    watchEndOfThread();
    const QEvent::Type type = static_cast<QEvent*>(data[1])->type();
    if (type == QEvent::MetaCall || type == QEvent::DeferredDelete || type >= QEvent::User) {
        __tsan_acquire(&queued);
    }
    return false; // deliver it
}

[[maybe_unused]] const bool registered =
    QInternal::registerCallback(QInternal::EventNotifyCallback, aboutToDeliver);

/// Qt's own function of this mangled name.
template <typename Function> Function qtFunction(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

void QMetaObject::activate(QObject* sender, const QMetaObject* metaObject, int signal, void** data)
{
    static const auto activate = qtFunction<void (*)(QObject*, const QMetaObject*, int, void**)>(
        "_ZN11QMetaObject8activateEP7QObjectPKS_iPPv");
    __tsan_release(&queued);
    activate(sender, metaObject, signal, data);
}

bool QMetaObject::invokeMethodImpl(QObject* object, QtPrivate::QSlotObjectBase* slot,
                                   Qt::ConnectionType type, void* result)
{
    static const auto invoke =
        qtFunction<bool (*)(QObject*, QtPrivate::QSlotObjectBase*, Qt::ConnectionType, void*)>(
            "_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseE"
            "N2Qt14ConnectionTypeEPv");
    auto* relay = new Relay(slot);
    __tsan_release(&queued);
    const bool invoked = invoke(object, relay, type, result);
    if (type == Qt::BlockingQueuedConnection) {
        __tsan_acquire(&called);
    }
    return invoked;
}

void QCoreApplication::postEvent(QObject* receiver, QEvent* event, int priority)
{
    static const auto post = qtFunction<void (*)(QObject*, QEvent*, int)>(
        "_ZN16QCoreApplication9postEventEP7QObjectP6QEventi");
    __tsan_release(&queued);
    post(receiver, event, priority);
}

void QObject::deleteLater()
{
    static const auto deleteLater = qtFunction<void (*)(QObject*)>("_ZN7QObject11deleteLaterEv");
    __tsan_release(&queued);
    deleteLater(this);
}

void QThread::quit()
{
    static const auto quit = qtFunction<void (*)(QThread*)>("_ZN7QThread4quitEv");
    __tsan_release(&queued);
    quit(this);
}

bool QThread::wait(QDeadlineTimer deadline)
{
    static const auto wait =
        qtFunction<bool (*)(QThread*, QDeadlineTimer)>("_ZN7QThread4waitE14QDeadlineTimer");
    const bool hasEnded = wait(this, deadline);
    __tsan_acquire(&ended);
    return hasEnded;
}
