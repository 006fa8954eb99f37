#include "qml/MainWindow.h"

#include <QKeyEvent>
#include <QQmlComponent>
#include <QtQml/QQmlExtensionPlugin>

#include <utility>

#include "bridge/items/ItemAccess.h"
#include "bridge/items/SecretAccess.h"

Q_IMPORT_QML_PLUGIN(LarkspanPlugin)
Q_IMPORT_QML_PLUGIN(Larkspan_BridgePlugin)
Q_IMPORT_QML_PLUGIN(Larkspan_Bridge_ComponentsPlugin)
Q_IMPORT_QML_PLUGIN(Larkspan_Bridge_IncidentsPlugin)
Q_IMPORT_QML_PLUGIN(Larkspan_Bridge_MaintenancesPlugin)
Q_IMPORT_QML_PLUGIN(Larkspan_Bridge_MenuPlugin)
Q_IMPORT_QML_PLUGIN(Larkspan_Bridge_MessagesPlugin)
Q_IMPORT_QML_PLUGIN(Larkspan_Bridge_MetricsPlugin)
Q_IMPORT_QML_PLUGIN(Larkspan_Bridge_MonitorsPlugin)
Q_IMPORT_QML_PLUGIN(Larkspan_Bridge_WorkspacePlugin)
Q_IMPORT_QML_PLUGIN(Larkspan_ComponentsPlugin)
Q_IMPORT_QML_PLUGIN(Larkspan_EventsPlugin)
Q_IMPORT_QML_PLUGIN(Larkspan_IncidentsPlugin)
Q_IMPORT_QML_PLUGIN(Larkspan_KitPlugin)
Q_IMPORT_QML_PLUGIN(Larkspan_MaintenancesPlugin)
Q_IMPORT_QML_PLUGIN(Larkspan_MenuPlugin)
Q_IMPORT_QML_PLUGIN(Larkspan_MessagesPlugin)
Q_IMPORT_QML_PLUGIN(Larkspan_MonitorsPlugin)

// Not in a header of Qt; the documentation of QKeySequence says to declare it.
QT_BEGIN_NAMESPACE
void qt_set_sequence_auto_mnemonic(bool isOn);
QT_END_NAMESPACE

namespace larkspan {

// A plain engine: a QQmlApplicationEngine looks for variants of each file for this platform and language.
MainWindow::MainWindow(Content content, platform::Executor& main)
    : screenUpdates_(main)
    , dashboard_(std::move(content.dashboard), screenUpdates_)
    , about_(content.about, content.showingAbout, content.aboutOwner, screenUpdates_)
    , updates_(std::move(content.updates), screenUpdates_)
{
    bridge::hideSecretsFromAccessibility();
    bridge::reportUnreachableItems();
    // Captions have no mnemonics: otherwise Alt and the space bar would press "Save & Verify".
    qt_set_sequence_auto_mnemonic(false);
    engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QQmlComponent component(&engine_, QUrl(QStringLiteral("qrc:/qt/qml/Larkspan/Main.qml")));
    window_.reset(qobject_cast<QQuickWindow*>(component.createWithInitialProperties({
        {QStringLiteral("dashboard"), QVariant::fromValue(&dashboard_)},
        {QStringLiteral("about"), QVariant::fromValue(&about_)},
        {QStringLiteral("updates"), QVariant::fromValue(&updates_)},
        {QStringLiteral("menu"), QVariant::fromValue(&content.menu)},
        {QStringLiteral("appearance"), QVariant::fromValue(&appearance_)},
    })));
    if (!window_) qFatal("the main window's QML does not load: %s", qPrintable(component.errorString()));
    connect(window_.get(), &QWindow::visibilityChanged, this, [this](QWindow::Visibility visibility) {
        const bool isSeen = visibility != QWindow::Minimized && visibility != QWindow::Hidden;
        isSeen ? screenUpdates_.release() : screenUpdates_.hold();
    });
    window_->installEventFilter(this);
    // Declared only in QML, so it can be connected only by a string.
    connect(window_.get(), SIGNAL(quitRequested()), this, SIGNAL(quitRequested()));
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    // Keys that arrive together, as from a password manager, are handled in one turn: Tab must find the button that the
    // letter before it has enabled. Of each key, shortcuts are asked first.
    const bool isKey = event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
    // But an impatient second Escape means the page that the first one leaves.
    if (isKey && static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape) screenUpdates_.deliver();
    return QObject::eventFilter(watched, event);
}

}  // namespace larkspan
