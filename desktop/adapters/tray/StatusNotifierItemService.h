#pragma once

#include <QDBusObjectPath>
#include <QObject>
#include <QString>

#include "adapters/tray/StatusIcon.h"
#include "adapters/tray/StatusNotifierTypes.h"

namespace larkspan::adapters {

/// The item's object on the bus for the desktop's panel. Main thread only.
class StatusNotifierItemService final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category CONSTANT)
    Q_PROPERTY(QString Id READ id CONSTANT)
    Q_PROPERTY(QString Title READ title CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(int WindowId READ windowId CONSTANT)
    Q_PROPERTY(QString IconThemePath READ iconThemePath CONSTANT)
    Q_PROPERTY(QString IconName READ iconName NOTIFY NewIcon)
    Q_PROPERTY(larkspan::adapters::StatusNotifierPixmaps IconPixmap READ iconPixmap NOTIFY NewIcon)
    Q_PROPERTY(QString IconAccessibleDesc READ iconAccessibleDescription NOTIFY NewIcon)
    Q_PROPERTY(QString OverlayIconName READ noName CONSTANT)
    Q_PROPERTY(larkspan::adapters::StatusNotifierPixmaps OverlayIconPixmap READ noPixmap CONSTANT)
    Q_PROPERTY(QString AttentionIconName READ noName CONSTANT)
    Q_PROPERTY(larkspan::adapters::StatusNotifierPixmaps AttentionIconPixmap READ noPixmap CONSTANT)
    Q_PROPERTY(QString AttentionMovieName READ noName CONSTANT)
    Q_PROPERTY(larkspan::adapters::StatusNotifierToolTip ToolTip READ toolTip NOTIFY NewToolTip)
    Q_PROPERTY(bool ItemIsMenu READ isMenu CONSTANT)
    Q_PROPERTY(QDBusObjectPath Menu READ menu CONSTANT)

public:
    static constexpr auto objectPath = "/StatusNotifierItem";
    static constexpr auto menuPath = "/MenuBar";

    explicit StatusNotifierItemService(QObject* parent = nullptr);

    /// The setters tell the hosts only of actual changes.
    void setIcon(const StatusIcon& icon, const QString& accessibleDescription);
    void setToolTip(const QString& toolTip);

    QString category() const { return "SystemServices"; }
    QString id() const { return "com.kestrune.larkspan"; }
    QString title() const { return "Kestrune"; }
    QString status() const { return "Active"; }
    int windowId() const { return 0; }
    QString iconThemePath() const { return icon_.themePath(); }
    QString iconName() const { return icon_.themeName(); }
    StatusNotifierPixmaps iconPixmap() const { return icon_.pixmaps(); }
    QString iconAccessibleDescription() const { return accessibleDescription_; }
    QString noName() const { return {}; }
    StatusNotifierPixmaps noPixmap() const { return {}; }
    /// Hosts show the icon's description as the second line if there is no other.
    StatusNotifierToolTip toolTip() const { return {.title = toolTip_, .text = title()}; }
    /// Whether a press on the item opens the menu.
    bool isMenu() const { return true; }
    QDBusObjectPath menu() const { return QDBusObjectPath(menuPath); }

public slots:
    Q_SCRIPTABLE void Activate(int x, int y);
    Q_SCRIPTABLE void SecondaryActivate(int x, int y);
    Q_SCRIPTABLE void ContextMenu(int x, int y);
    Q_SCRIPTABLE void Scroll(int delta, const QString& orientation);
    Q_SCRIPTABLE void ProvideXdgActivationToken(const QString& token);

signals:
    Q_SCRIPTABLE void NewIcon();
    Q_SCRIPTABLE void NewToolTip();

    /// Emitted when the user presses the item, on a host that does not open its menu then.
    void activated();
    void activationTokenProvided(const QString& token);

private:
    StatusIcon icon_;
    QString accessibleDescription_;
    QString toolTip_;
};

}  // namespace larkspan::adapters
