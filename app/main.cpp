#include "Product.h"
#include "app/CommandLine.h"
#include "app/CompanionProgram.h"
#include "app/CompanionSettings.h"
#include "app/ComponentSteps.h"
#include "app/Console.h"
#include "app/CrashSetup.h"
#include "app/Facade.h"
#include "app/InstanceScan.h"
#include "app/Logging.h"
#include "app/ProcessTable.h"
#include "app/QtMessages.h"
#include "app/RendererChoice.h"
#include "app/TerminationSignal.h"
#include "app/Translations.h"
#include "app/WebView.h"
#include "qml/UserInterface.h"

#include <Velto/ApplicationInfo.h>
#include <Velto/ComponentConfigurator.h>
#include <Velto/Loggers.h>

#include <QApplication>
#include <QLocale>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQuickStyle>

#include <spdlog/spdlog.h>

#include <iostream>
#include <memory>

namespace orvex {

namespace {

constexpr const char* mainDocument = "qrc:/qml/main.qml";

/// Makes the library's components known before anything else runs.
struct ComponentRegistration {
    ComponentRegistration() {
        VeltoExportQAutoDiscoveryComponent();
        VeltoExportZCommComponent();
    }
};
const ComponentRegistration componentRegistration;

void registerApplication(int argc, char** argv) {
    using Velto::ApplicationInfo;
    ApplicationInfo::Init("QuiveraApp", "QuiveraApp", QuiveraProduct::vendor, QuiveraProduct::version, "",
                          ApplicationInfo::DataFolderType::User, argc, argv);
}

void keepNewestInstance() {
    const auto processes = makeSystemProcessTable();
    if (endOtherInstances(*processes)) {
        CompanionProgram(QString::fromLatin1(backgroundCompanionValue)).start();
    }
}

void initialiseLogging(Logging& logging) {
    try {
        logging.configure(logConfigFile());
    } catch (const std::exception& e) {
        logging.configureByDefault(e.what());
    }
    logging.initialise({&Velto::InitLoggerBaseComm, &Velto::InitLoggerCoreUtils,
                        &Velto::InitLoggerInterprocMessaging, &Velto::InitLoggerQAutoDiscoveryComponent,
                        &Velto::InitLoggerThreading, &Velto::InitLoggerZCommComponent});
    installAppLoggerHandler();
}

void logStart() {
    if (const auto logger = spdlog::get(programLoggerName)) {
        // Parts this run from the one before.
        logger->info("");
        logger->info("{} {} starting...", Velto::ApplicationInfo::Name(), Velto::ApplicationInfo::Version());
    }
}

/// Whoever reads the log sees by it that the program was not just killed.
void logEnd() {
    if (const auto logger = spdlog::get(programLoggerName)) {
        logger->info("{} {} ended", Velto::ApplicationInfo::Name(), Velto::ApplicationInfo::Version());
    }
}

void publish(QQmlContext& context, Facade& facade) {
    context.setContextProperty(QStringLiteral("api"), &facade);
    context.setContextProperty(QStringLiteral("deviceManager"), facade.deviceManager());
    context.setContextProperty(QStringLiteral("deviceListModel"), facade.deviceListModel());
    context.setContextProperty(QStringLiteral("currDevice"), facade.deviceProxy());
    context.setContextProperty(QStringLiteral("seatListModel"), facade.seatListModel());
    context.setContextProperty(QStringLiteral("mediaListModel"), facade.mediaListModel());
    context.setContextProperty(QStringLiteral("detailedStatusModel"), facade.detailedStatusModel());
}

/// From the Qt application object to its end. The objects on the stack go in the opposite order.
int runApplication(int argc, char** argv, const std::string& hostName, Logging& logging) {
    initializeWebView();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    // As large as the user has set: rounded, a screen at 150 % would show everything twice as large.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    // The end of the session is asked about first and may be called off by another program: nothing closes
    // then.
    QGuiApplication::setFallbackSessionManagementEnabled(false);
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Orvex"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("com.orvex.app"));
    QQuickStyle::setStyle(QStringLiteral("Material"));
    chooseRenderer();
    prepareUserInterface();
    installTranslations(application, QLocale::system().uiLanguages());
    const TerminationSignal terminationSignal;

    auto facade = std::make_shared<Facade>(hostName);
    Velto::ComponentConfigurator components;
    reportComponentStep(ComponentStep::Initialize, components.Init(false));

    auto engine = std::make_unique<QQmlApplicationEngine>();
    publish(*engine->rootContext(), *facade);
    engine->load(QUrl(QString::fromLatin1(mainDocument)));
    if (engine->rootObjects().isEmpty()) {
        return -1;
    }
    reportComponentStep(ComponentStep::Activate, components.Resume());
    facade->start();
    const int exitCode = QApplication::exec();

    // The engine first: no binding may read a model that is going. Then everything that calls back, before
    // the threads that call back are stopped.
    engine.reset();
    facade.reset();
    reportComponentStep(ComponentStep::Suspend, components.Suspend());
    reportComponentStep(ComponentStep::Shutdown, components.Shutdown());
    logEnd();
    logging.shutDown();
    return exitCode;
}

int run(int argc, char** argv) {
    attachToParentConsole();
    registerApplication(argc, argv);
    keepNewestInstance();
    const CommandLine commandLine = parseCommandLine(argc, argv, std::cout, std::cerr);
    if (commandLine.exitCode) {
        return *commandLine.exitCode;
    }
    Logging logging(Velto::ApplicationInfo::DataPath(), std::cerr);
    initialiseLogging(logging);
    setUpCrashHandling();
    logStart();
    return runApplication(argc, argv, commandLine.hostName, logging);
}

} // namespace

} // namespace orvex

int main(int argc, char** argv) {
    return orvex::run(argc, argv);
}
