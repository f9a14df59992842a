#pragma once

#include <QNetworkAccessManager>
#include <QObject>
#include <QUrl>

class QNetworkReply;

/// Asks the update server once for the newest version and offers to open its download page. Silent whenever the server
/// cannot be asked. Lives for as long as the event loop runs, since the answer may come at any time.
class UpdateChecker : public QObject
{
    Q_OBJECT

public:
    /// Asks at defaultSource().
    explicit UpdateChecker(QObject* parent = nullptr);

    /// @p source is the address of the version document.
    explicit UpdateChecker(const QUrl& source, QObject* parent = nullptr);

    /// The address at the distributor's update server.
    [[nodiscard]] static QUrl defaultSource();

    /// How long the whole answer may take, in milliseconds; 15 seconds unless set.
    void setPatience(int milliseconds) { m_patience = milliseconds; }

    /// Sends the request and returns at once. No redirect is followed, and an answer that takes too long or has more
    /// than 64 KiB is none.
    void checkForUpdates();

    /// Evaluates @p reply, which is released. A newer version opens a question; a fault is a line in the debug log.
    void onReplyFinished(QNetworkReply* reply);

    /// True when the version @p remote is greater than @p current, compared number by number; text after the numbers is
    /// ignored, and what is no version is never newer.
    [[nodiscard]] static bool isNewer(const QString& remote, const QString& current);

signals:
    /// Never sent: the check offers a page and downloads nothing.
    void updateReady(const QString& filePath);

private:
    QNetworkAccessManager m_manager {this};
    QUrl m_source;
    int m_patience = 15000;
};
