#include "update/UpdateChecker.h"

#include "base/ProductInfo.h"

#include <QApplication>
#include <QDebug>
#include <QDesktopServices>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMessageBox>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QVersionNumber>

UpdateChecker::UpdateChecker(QObject* parent)
    : UpdateChecker(defaultSource(), parent)
{
}

UpdateChecker::UpdateChecker(const QUrl& source, QObject* parent)
    : QObject(parent)
    , m_source(source)
{
}

QUrl UpdateChecker::defaultSource()
{
    QUrl url;
    url.setScheme(QStringLiteral("https"));
    url.setHost(ProductInfo::updateHost);
    url.setPath(QStringLiteral("/downloads/korvel5/version.json"));
    return url;
}

void UpdateChecker::checkForUpdates()
{
    QNetworkReply* reply = m_manager.get(QNetworkRequest(m_source));
    connect(reply, &QNetworkReply::finished, this, [this, reply] { onReplyFinished(reply); });
}

void UpdateChecker::onReplyFinished(QNetworkReply* reply)
{
    reply->deleteLater();
    if (reply->error() != QNetworkReply::NoError) {
        qDebug().noquote() << "Update check error:" << reply->errorString();
        return;
    }
    const QJsonObject answer = QJsonDocument::fromJson(reply->readAll()).object();
    const QString remote = answer.value(QLatin1String("version")).toString();
    if (!isNewer(remote, ProductInfo::version))
        return;

    QString url = answer.value(QLatin1String("url_linux")).toString();
    if (url.isEmpty())
        url = answer.value(QLatin1String("url")).toString();
    QWidget* window = QApplication::activeWindow();
    if (url.isEmpty()) {
        QMessageBox::warning(window, tr("Error"), tr("Download URL is missing in server response."));
        return;
    }
    const QString question = tr("New version %1 available.\n\nOpen download page?").arg(remote);
    if (QMessageBox::question(window, tr("Update available"), question) != QMessageBox::Yes)
        return;
    const QUrl page(url);
    // A page and nothing else: with another scheme the server could start any program that is registered for it.
    const bool isPage = page.scheme() == QLatin1String("https") || page.scheme() == QLatin1String("http");
    if (!isPage || !QDesktopServices::openUrl(page))
        QMessageBox::warning(QApplication::activeWindow(), tr("Error"), tr("Could not open the link."));
}

bool UpdateChecker::isNewer(const QString& remote, const QString& current)
{
    return QVersionNumber::compare(QVersionNumber::fromString(remote), QVersionNumber::fromString(current)) > 0;
}
