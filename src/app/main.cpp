#include "app/KorvelApp.h"
#include "app/Startup.h"
#include "base/ProductInfo.h"
#include "i18n/JsonToQtTranslator.h"
#include "i18n/LanguageFiles.h"
#include "update/UpdateChecker.h"

#include <QApplication>
#include <QIcon>

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);

    LanguageFiles::useUtf8Names();

    // Before any widget: the texts that widgets show are translated while they are built.
    auto* translator = new JsonToQtTranslator(&application);
    translator->loadLanguage(Startup::language());
    QCoreApplication::installTranslator(translator);

    KorvelApp window;
    window.setWindowTitle(QString(ProductInfo::name) + QLatin1Char(' ') + ProductInfo::version);
    // A large font may need more; the window would grow when shown, off its centre.
    window.resize(QSize(520, 655).expandedTo(window.minimumSizeHint()));
    window.setWindowIcon(QIcon(QStringLiteral(":/icons/logo.png")));
    Startup::moveToPointerScreen(window);
    window.show();

    UpdateChecker updateChecker;
    updateChecker.checkForUpdates();
    return QApplication::exec();
}
