// The update server's reply.

#include "Fuzz.h"
#include "update/UpdateChecker.h"

#include <QNetworkReply>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz::instance().boxes.button = QMessageBox::No;
    static QNetworkAccessManager manager;
    static UpdateChecker checker;
    const QUrl url("data:application/json;base64," + QString::fromLatin1(inputOf(data, size).toBase64()));
    checker.onReplyFinished(manager.get(QNetworkRequest(url)));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return 0;
}
