#include "about/AboutView.h"

#include "base/ProductInfo.h"

#include <QDate>
#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QPalette>
#include <QTextEdit>
#include <QUrl>
#include <QVBoxLayout>

namespace {

constexpr int lightest = 255;
constexpr QRgb lightGround = 0xefefef;

/// Newest first. Each line of an entry ends in a line break, so that an empty paragraph parts the entries.
constexpr const char* history[] = {
    "v5.6 - 07.04.2026 \n"
    "- Fixed file dialog path handling (../)\n"
    "- Fixed the text of message boxes\n"
    "- Fixed minor UI issues\n",
    "v5.5 - 19.03.2026 \n"
    "- Fixed file dialog path handling\n"
    "- Fixed message boxes behavior\n"
    "- Fixed language support\n"
    "- Fixed minor UI issues\n",
    "v5.4 - 05.03.2026\n"
    "- Added message boxes\n"
    "- Fixed default fuse bits\n"
    "- Fixed minor UI issues\n",
    "v5.3 - 28.02.2026\n"
    "- Added microcontrollers\n"
    "- Fixed COM port selection\n"
    "- Fixed language support\n"
    "- Fixed minor UI issues\n",
    "v5.2 - 25.02.2026\n"
    "- Added microcontrollers\n"
    "- Added programmers\n"
    "- Fixed minor UI issues\n",
    "v5.1 - 22.02.2026\n"
    "- Added multi-language support\n"
    "- Fixed 'arguments' parameter for programmer\n"
    "- Fixed minor UI issues\n",
    ("v5.0 (beta) - 15.02.2026\n"
     "- Korvel5\n"), // in parentheses, since one entry of two strings looks like a forgotten comma to clang
};

QString link(const QString& address, const QString& text)
{
    return QStringLiteral("<a href=\"%1\" style=\"color: #4A4A4A; text-decoration: underline; \">%2</a>")
        .arg(address.toHtmlEscaped(), text);
}

/// Behind the terms of use. The file's own path: a browser in a sandbox may see that, and not the link to it.
QString guideLink(const QString& guide)
{
    const QString path = QFileInfo(guide).canonicalFilePath();
    if (path.isEmpty())
        return {};
    const QUrl address = QUrl::fromLocalFile(path);
    return QStringLiteral(" &ndash; ") + link(address.toString(QUrl::FullyEncoded), QStringLiteral("Guide"));
}

QString information(const QString& guide)
{
    return QStringLiteral("<p style=\"line-height: 1.5; color: #4A4A4A;\">%1<br>OS: Windows7/10/11, Linux<br>%2%3</p>")
        .arg(link(ProductInfo::website, ProductInfo::website), ProductInfo::termsOfUse, guideLink(guide));
}

} // namespace

AboutView::AboutView(QWidget* parent, const QString& guide)
    : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(10);
    const auto addLabel = [this, layout](const QString& text, Qt::Alignment alignment, const QString& style) {
        auto* label = new QLabel(text, this);
        label->setAlignment(alignment);
        label->setStyleSheet(style);
        layout->addWidget(label);
        return label;
    };

    // Two blanks between name and version, as on every release so far.
    addLabel(QString(ProductInfo::name) + QLatin1String("  ") + ProductInfo::version, Qt::AlignCenter,
             QStringLiteral("font-size: 14pt; font-weight: bold; color: #4A4A4A;"));
    addLabel(ProductInfo::byline, Qt::AlignLeft,
             QStringLiteral("font-size: 12pt; color: #4A4A4A; padding-left: 30px;"));
    QLabel* block = addLabel(information(guide), Qt::AlignLeft, QStringLiteral("padding-left: 30px;"));
    block->setTextFormat(Qt::RichText);
    block->setOpenExternalLinks(true);
    if (QFileInfo::exists(guide)) // to which keys lead too; the website has a button in the corner
        block->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);

    m_versions = new QTextEdit(this);
    m_versions->setReadOnly(true);
    m_versions->setAccessibleName(QStringLiteral("Version history"));
    m_versions->setLineWrapMode(QTextEdit::WidgetWidth);
    m_versions->setStyleSheet(QStringLiteral("QTextEdit {  background-color: #f0f0f0;  border: 1px solid #cccccc;  "
                                             "border-radius: 3px;  font-family: Consolas, 'Courier New', monospace;  "
                                             "font-size: 10pt;}"));
    for (const char* entry : history)
        m_versions->append(QLatin1String(entry));
    m_versions->moveCursor(QTextCursor::Start);
    layout->addWidget(m_versions);

    addLabel(QStringLiteral("%1 - %2").arg(ProductInfo::startYear).arg(QDate::currentDate().year()), Qt::AlignCenter,
             QStringLiteral("color: #888888; font-size: 10pt;"));
    keepReadable();
}

void AboutView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        keepReadable();
    QWidget::changeEvent(event);
}

void AboutView::keepReadable()
{
    if (palette().color(QPalette::Window).lightness() >= lightest / 2)
        return;
    const QPalette light {QColor(lightGround)};
    setPalette(light);
    m_versions->setPalette(light); // by itself: what has a style sheet that sets colours inherits no palette
    setAutoFillBackground(true);
}
