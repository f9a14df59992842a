// The update server's reply.

#include "Fuzz.h"
#include "update/UpdateChecker.h"

#include <QNetworkReply>

#include <cstring>

namespace {

class Reply : public QNetworkReply
{
public:
    explicit Reply(const QByteArray& content)
        : m_content(content)
    {
        open(QIODevice::ReadOnly);
    }

    void abort() override { }
    qint64 bytesAvailable() const override { return m_content.size() + QNetworkReply::bytesAvailable(); }

protected:
    qint64 readData(char* data, qint64 maximum) override
    {
        const auto size = std::min<qint64>(maximum, m_content.size());
        std::memcpy(data, m_content.constData(), static_cast<std::size_t>(size));
        m_content.remove(0, static_cast<int>(size));
        return size;
    }

private:
    QByteArray m_content;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz::instance().boxes.button = QMessageBox::No;
    static UpdateChecker checker;
    checker.onReplyFinished(new Reply(inputOf(data, size)));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return 0;
}
