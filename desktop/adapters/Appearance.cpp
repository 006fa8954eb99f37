#include "adapters/Appearance.h"

#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

#include <array>
#include <utility>

#include "adapters/WhenAnswered.h"

namespace larkspan::adapters {

namespace {

constexpr auto portal = "org.freedesktop.portal.Desktop";
constexpr auto portalPath = "/org/freedesktop/portal/desktop";
constexpr auto settingsInterface = "org.freedesktop.portal.Settings";

struct Setting {
    const char* group;
    const char* key;

    QString name() const { return nameOf(group, key); }
    static QString nameOf(const QString& group, const QString& key) { return group + u'/' + key; }
};

constexpr Setting colorScheme{"org.freedesktop.appearance", "color-scheme"};
constexpr Setting contrast{"org.freedesktop.appearance", "contrast"};
constexpr Setting reducedMotion{"org.freedesktop.appearance", "reduced-motion"};
// The same setting as desktops expressed it before the portal had one.
constexpr Setting gnomeAnimations{"org.gnome.desktop.interface", "enable-animations"};
constexpr Setting plasmaAnimations{"org.kde.kdeglobals.KDE", "AnimationDurationFactor"};
constexpr std::array settings{colorScheme, contrast, reducedMotion, gnomeAnimations, plasmaAnimations};

constexpr uint prefersDark = 1;
constexpr uint prefersLight = 2;
constexpr uint prefersHighContrast = 1;
constexpr uint prefersReducedMotion = 1;

/// `Read` wraps its answer in one more variant than the signal does.
QVariant unwrapped(QVariant value)
{
    while (value.metaType() == QMetaType::fromType<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
    return value;
}

bool isPaletteDark()
{
    const auto palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

}  // namespace

Appearance::Appearance(const SessionBus& bus, QObject* parent)
    : QObject(parent)
    , bus_(bus)
    , portal_(portal, bus_.connection(), QDBusServiceWatcher::WatchForRegistration)
{
    qGuiApp->installEventFilter(this);
    update();
    // Otherwise the connection works only if other code has registered the type of the slot's argument before.
    qRegisterMetaType<QDBusVariant>();
    connect(&portal_, &QDBusServiceWatcher::serviceRegistered, this, &Appearance::readAll);
    connect(&bus_, &SessionBus::changed, this, &Appearance::followPortal);
    followPortal();
}

void Appearance::followPortal()
{
    auto bus = bus_.connection();
    if (!bus.isConnected()) return;
    portal_.setConnection(bus);
    bus.connect(portal, portalPath, settingsInterface, "SettingChanged", this,
        SLOT(onSettingChanged(QString, QString, QDBusVariant)));
    readAll();
}

void Appearance::catchUp()
{
    for (const auto& question : std::exchange(questions_, {})) {
        if (question.answer.isFinished()) {
            take(question);
        } else {
            questions_.push_back(question);
        }
    }
    update();
}

bool Appearance::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ApplicationPaletteChange) update();
    return QObject::eventFilter(watched, event);
}

void Appearance::onSettingChanged(const QString& group, const QString& key, const QDBusVariant& value)
{
    values_.insert(Setting::nameOf(group, key), unwrapped(value.variant()));
    update();
}

void Appearance::readAll()
{
    for (const auto& setting : settings) {
        auto call = QDBusMessage::createMethodCall(portal, portalPath, settingsInterface, "Read");
        call << setting.group << setting.key;
        questions_.push_back({setting.name(), bus_.connection().asyncCall(call)});
        whenAnswered(this, questions_.back().answer, [this](const auto&) { catchUp(); });
    }
}

void Appearance::take(const Question& question)
{
    const QDBusPendingReply<QDBusVariant> reply = question.answer;
    if (reply.isError()) {
        values_.remove(question.setting);
    } else {
        values_.insert(question.setting, unwrapped(reply.value().variant()));
    }
}

void Appearance::update()
{
    const auto valueOf = [this](const Setting& setting) { return values_.value(setting.name()); };
    const auto isOff = [](const QVariant& value) {
        bool isNumber = false;
        return value.toDouble(&isNumber) == 0 && isNumber;
    };

    const uint scheme = valueOf(colorScheme).toUInt();
    const bool isDark = scheme == prefersDark || (scheme != prefersLight && isPaletteDark());
    const bool isHighContrast = valueOf(contrast).toUInt() == prefersHighContrast;
    const bool reducesMotion = valueOf(reducedMotion).toUInt() == prefersReducedMotion
        || isOff(valueOf(gnomeAnimations)) || isOff(valueOf(plasmaAnimations));

    if (std::exchange(isDark_, isDark) != isDark) emit isDarkChanged();
    if (std::exchange(isHighContrast_, isHighContrast) != isHighContrast) emit isHighContrastChanged();
    if (std::exchange(reducesMotion_, reducesMotion) != reducesMotion) emit reducesMotionChanged();
}

}  // namespace larkspan::adapters
