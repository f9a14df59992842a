#include "update/UpdateChecker.h"

#include "base/Box.h"
#include "base/ProductInfo.h"
#include "base/ShownText.h"

#include <QApplication>
#include <QDebug>
#include <QDesktopServices>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMessageBox>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QVersionNumber>

namespace {

constexpr qint64 largestAnswer = 65536; // bytes, which is a hundred times what there is to say

/// Whether @p text is short and begins as versions do, with a number. It is shown.
bool isVersion(const QString& text)
{
    constexpr int longest = 20; // characters
    return !text.isEmpty() && text.size() <= longest && text.at(0) >= QLatin1Char('0')
        && text.at(0) <= QLatin1Char('9');
}

} // namespace

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
    QNetworkRequest request(m_source);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setRawHeader("Accept-Encoding", "identity"); // what is unpacked has no bound
    QNetworkReply* reply = m_manager.get(request);
    reply->setReadBufferSize(largestAnswer + 1);
    connect(reply, &QNetworkReply::readyRead, this, [reply] {
        if (reply->bytesAvailable() > largestAnswer)
            reply->abort();
    });
    QTimer::singleShot(m_patience, reply, &QNetworkReply::abort); // one that trickles never ends by itself
    connect(reply, &QNetworkReply::finished, this, [this, reply] { onReplyFinished(reply); });
}

void UpdateChecker::onReplyFinished(QNetworkReply* reply)
{
    reply->deleteLater();
    if (reply->error() != QNetworkReply::NoError) {
        qDebug().noquote() << "Update check error:" << reply->errorString();
        return;
    }
    const bool isElsewhere = reply->attribute(QNetworkRequest::RedirectionTargetAttribute).isValid();
    if (isElsewhere || reply->bytesAvailable() > largestAnswer)
        return;
    const QJsonObject answer = QJsonDocument::fromJson(reply->readAll()).object();
    const QString remote = answer.value(QLatin1String("version")).toString();
    if (!isVersion(remote) || !isNewer(remote, ProductInfo::version))
        return;

    QString url = answer.value(QLatin1String("url_linux")).toString();
    if (url.isEmpty())
        url = answer.value(QLatin1String("url")).toString();
    QWidget* window = QApplication::activeWindow();
    if (url.isEmpty()) {
        QMessageBox::warning(window, tr("Error"), tr("Download URL is missing in server response."));
        return;
    }
    const QUrl page(url);
    // A page and nothing else: with another scheme the server could start any program that is registered for it.
    const bool isPage = (page.scheme() == QLatin1String("https") || page.scheme() == QLatin1String("http"))
        && !page.host().isEmpty() && page.userInfo().isEmpty();
    // An address that is too long for the box is cut, and the host stands before it as a whole.
    constexpr int longestShown = 120; // characters
    constexpr int longestHost = 300; // more than there are
    QString address = isPage ? page.toString(QUrl::FullyEncoded) : url;
    const QString host = address.size() > longestShown && isPage
        ? shownText(page.host(QUrl::FullyEncoded), longestHost) + QLatin1Char('\n')
        : QString();
    address = host + shownText(address, longestShown);
    Box question(QMessageBox::Question, tr("Update available"),
                 tr("New version %1 available.\n\nOpen download page?").arg(shownText(remote)), address,
                 QMessageBox::Yes | QMessageBox::No, window);
    if (question.exec() != QMessageBox::Yes)
        return;
    if (!isPage || !QDesktopServices::openUrl(page))
        QMessageBox::warning(QApplication::activeWindow(), tr("Error"), tr("Could not open the link."));
}

bool UpdateChecker::isNewer(const QString& remote, const QString& current)
{
    return QVersionNumber::compare(QVersionNumber::fromString(remote), QVersionNumber::fromString(current)) > 0;
}
