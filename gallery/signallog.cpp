// SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
// SPDX-License-Identifier: MIT

#include "signallog.h"

#include "applicationfont.h"

#include <QDebug>
#include <QFontDatabase>
#include <QMetaMethod>
#include <QTextBlock>

namespace Gallery {

namespace {

// Lines of the log that are kept.
constexpr int MaximumLines = 200;

/// Index of the first method that is worth logging: what QObject and QWidget declare is not.
int firstMethodOf(const QObject* object)
{
    return object->isWidgetType() ? QWidget::staticMetaObject.methodCount()
                                  : QObject::staticMetaObject.methodCount();
}

/// The class that declares the method with this index.
const QMetaObject* declaringClass(const QMetaObject* meta, int index)
{
    while (meta->methodOffset() > index) {
        meta = meta->superClass();
    }
    return meta;
}

bool isWorthLogging(const QMetaMethod& method)
{
    // A plain text field emits the latter whenever it is painted.
    return method.methodType() == QMetaMethod::Signal && method.name() != "updateRequest";
}

bool isOurs(const QMetaObject* meta)
{
    const QByteArray name = meta->className();
    return !name.startsWith('Q') || name == "QCopChannel";
}

QString describeArgument(QMetaType type, const void* value)
{
    const QVariant argument(type, value);
    if (argument.canConvert<QString>() && argument.typeId() != QMetaType::QByteArray) {
        const bool isText = argument.typeId() == QMetaType::QString;
        return isText ? QLatin1Char('"') + argument.toString() + QLatin1Char('"')
                      : argument.toString();
    }
    QString text;
    QDebug debug(&text);
    if (type.debugStream(debug.nospace().noquote(), value)) {
        return text.trimmed();
    }
    return QString::fromLatin1(type.name());
}

} // namespace

/// Receives the signals of one object through method indexes of its own, one per signal, as no
/// compiled slot could.
class SignalLog::Watcher : public QObject
{
public:
    Watcher(SignalLog* log, QString name, QObject* object)
        : m_log(log)
        , m_name(std::move(name))
    {
        const QMetaObject* meta = object->metaObject();
        const int firstSlot = QObject::staticMetaObject.methodCount();
        for (int index = firstMethodOf(object); index < meta->methodCount(); ++index) {
            if (isWorthLogging(meta->method(index))) {
                QMetaObject::connect(object, index, this, firstSlot + int(m_signals.size()));
                m_signals.push_back({ meta->method(index), isOurs(declaringClass(meta, index)) });
            }
        }
    }

    int qt_metacall(QMetaObject::Call call, int id, void** arguments) override
    {
        id = QObject::qt_metacall(call, id, arguments);
        if (id < 0 || call != QMetaObject::InvokeMetaMethod) {
            return id;
        }
        if (id < int(m_signals.size())) {
            report(m_signals.at(std::size_t(id)), arguments);
        }
        return id - int(m_signals.size());
    }

private:
    struct Signal
    {
        QMetaMethod method;
        bool isOurs;
    };

    void report(const Signal& signal, void** arguments) const
    {
        QStringList texts;
        for (int i = 0; i < signal.method.parameterCount(); ++i) {
            texts.append(describeArgument(signal.method.parameterMetaType(i), arguments[i + 1]));
        }
        m_log->addLine(m_name + QStringLiteral(": ") + QString::fromLatin1(signal.method.name())
                           + QLatin1Char('(') + texts.join(QStringLiteral(", ")) + QLatin1Char(')'),
                       signal.isOurs);
    }

    SignalLog* m_log;
    QString m_name;
    std::vector<Signal> m_signals;
};

SignalLog::SignalLog(QWidget* parent)
    : QPlainTextEdit(parent)
{
    setObjectName(QStringLiteral("GallerySignalLog"));
    setAccessibleName(QStringLiteral("Signal log"));
    setReadOnly(true);
    setFocusPolicy(Qt::TabFocus); // a tap leaves the focus with the instance at hand
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setLayoutDirection(Qt::LeftToRight); // code is, wherever it is read
    setMaximumBlockCount(MaximumLines);
    setPlaceholderText(QStringLiteral("Touch an instance: its signals appear here."));
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSize(ApplicationFont::sizes().tiny);
    setFont(font);
}

SignalLog::~SignalLog() = default;

void SignalLog::watch(const QString& name, QObject* object)
{
    m_watchers.push_back(std::make_unique<Watcher>(this, name, object));
}

void SignalLog::addLine(const QString& line, bool strong)
{
    if (line == m_lastLine) {
        QTextCursor last(document()->lastBlock());
        last.select(QTextCursor::BlockUnderCursor);
        const QTextCharFormat format = last.charFormat();
        last.movePosition(QTextCursor::EndOfBlock);
        last.movePosition(QTextCursor::StartOfBlock, QTextCursor::KeepAnchor);
        last.insertText(QStringLiteral("%1  (%2 times)").arg(line).arg(++m_repeats), format);
        return;
    }
    m_lastLine = line;
    m_repeats = 1;
    QTextCharFormat format;
    format.setForeground(strong ? QColor(Qt::black) : QColor(0x6b, 0x6b, 0x6b));
    format.setFontWeight(strong ? QFont::Bold : QFont::Normal);
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    if (!document()->isEmpty()) {
        end.insertBlock();
    }
    end.insertText(line, format);
    end.movePosition(QTextCursor::StartOfBlock); // of a long line, the start is what matters
    setTextCursor(end);
    ensureCursorVisible();
}

void SignalLog::reset()
{
    m_watchers.clear();
    m_lastLine.clear();
    clear();
}

} // namespace Gallery

#include "moc_signallog.cpp"
