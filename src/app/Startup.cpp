#include "app/Startup.h"

#include "base/JsonFile.h"
#include "base/ProductInfo.h"

#include <QCursor>
#include <QDebug>
#include <QGuiApplication>
#include <QJsonObject>
#include <QScreen>
#include <QStyle>
#include <QWidget>

#include <algorithm>

QString Startup::language()
{
    QString fallback = ProductInfo::defaultLanguage;
    const JsonFile file = JsonFile::read(ProductInfo::settingsFile);
    if (!file.wasRead()) {
        qDebug().noquote() << "Config file not found, using default language:" << fallback;
        return fallback;
    }
    if (!file.isObject()) {
        qDebug().noquote() << "Config parse error:" << file.error;
        return fallback;
    }
    const QJsonObject settings = file.document.object();
    const auto language = settings.constFind(QLatin1String("language"));
    return language == settings.constEnd() ? fallback : language->toString();
}

void Startup::moveToPointerScreen(QWidget& window)
{
    const QScreen* screen = QGuiApplication::screenAt(QCursor::pos());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    const QRect area = screen->availableGeometry();
    const int y = area.top() + std::max(0, (area.height() - window.height()) / 2);
    if (window.height() > area.height()) {
        // How high the frame is shows only later: it is as high as the title, and as much again.
        const int frame = 2 * window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
        const int scrollBar = window.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
        window.resize(std::min(window.width() + scrollBar, area.width()), area.height() - frame);
    }
    window.move(area.left() + (area.width() - window.width()) / 2, y);
}
