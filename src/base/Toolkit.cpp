#include "base/Toolkit.h"

#include <QCoreApplication>
#include <QMouseEvent>

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

#include <QGuiApplication>
#include <QTextCodec>

struct Toolkit::Utf8Decoder::State {
    QString decode(const QByteArray& piece) { return decoder->toUnicode(piece); }
    const std::unique_ptr<QTextDecoder> decoder {QTextCodec::codecForName("UTF-8")->makeDecoder()};
};

void Toolkit::useHighDpi()
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#ifdef Q_OS_WIN
    // Many screens are set to 150 % there: rounded to 200, the window would be higher than the screen.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
#endif
}

void Toolkit::useUtf8Names()
{
#ifdef Q_OS_UNIX
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
#endif
}

void Toolkit::keepWindowsOnCommit()
{
    QGuiApplication::setFallbackSessionManagementEnabled(false);
}

QPoint Toolkit::globalPosition(const QMouseEvent& event)
{
    return event.globalPos();
}

#else // does all of it by itself

#include <QStringDecoder>

struct Toolkit::Utf8Decoder::State {
    QString decode(const QByteArray& piece) { return decoder.decode(piece); }
    QStringDecoder decoder {QStringDecoder::Utf8};
};

void Toolkit::useHighDpi() { }

void Toolkit::useUtf8Names() { }

void Toolkit::keepWindowsOnCommit() { }

QPoint Toolkit::globalPosition(const QMouseEvent& event)
{
    return event.globalPosition().toPoint();
}

#endif

Toolkit::Utf8Decoder::Utf8Decoder()
{
    reset();
}

Toolkit::Utf8Decoder::~Utf8Decoder() = default;

void Toolkit::Utf8Decoder::reset()
{
    m_state = std::make_unique<State>();
}

QString Toolkit::Utf8Decoder::decode(const QByteArray& piece)
{
    // Qt 5 forgets the first part of a split character when an empty piece follows.
    return piece.isEmpty() ? QString() : m_state->decode(piece);
}
