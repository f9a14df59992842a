#include "app/KorvelApp.h"
#include "app/LegibleStyle.h"
#include "app/Startup.h"
#include "base/OnWindows.h"
#include "base/ProductInfo.h"
#include "base/Toolkit.h"
#include "i18n/JsonToQtTranslator.h"
#include "update/UpdateChecker.h"

#include <QApplication>
#include <QIcon>

#include <optional>

int main(int argc, char* argv[])
{
    Toolkit::useHighDpi();
    QApplication application(argc, argv);
    Toolkit::useUtf8Names();
    OnWindows::leaveSystemFolder();
    Startup::leaveOutOpenGl();
    LegibleStyle::install();

    // Before any widget: the texts that widgets show are translated while they are built.
    auto* translator = new JsonToQtTranslator(&application);
    translator->loadLanguage(Startup::language());
    QCoreApplication::installTranslator(translator);

    Startup::closeOnRequest();
    KorvelApp window;
    window.setWindowTitle(QString(ProductInfo::name) + QLatin1Char(' ') + ProductInfo::version);
    // A large font may need more; the window would grow when shown, off its centre.
    window.resize(QSize(520, 655).expandedTo(window.sizeHint()));
    window.setWindowIcon(QIcon(QStringLiteral(":/icons/logo.png")));
    Startup::moveToPointerScreen(window);
    std::optional<UpdateChecker> updateChecker;
    Startup::afterFirstPaint(window, [&] {
        if (window.checksForUpdates())
            updateChecker.emplace().checkForUpdates();
    });
    window.show(); // which paints at once on some platforms
    return QApplication::exec();
}
