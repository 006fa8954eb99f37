#pragma once

#include <QAccessible>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStringList>

#include <functional>
#include <memory>

#include "fakes/FakeLinkOpener.h"
#include "fakes/FakeLocaleText.h"
#include "fakes/PolledAccount.h"
#include "qml/MainWindow.h"
#include "workspace/DashboardView.h"

namespace larkspan {

/// The real window over a fake account, read and used as a person with keyboard and screen reader would.
class Screen : public fakes::PolledAccount {
public:
    Screen();

    /// Runs until both threads of the program and the window are idle.
    void settle();

    /// The objects that a screen reader finds: all accessible ones that are not hidden, in reading order.
    struct Thing {
        QAccessible::Role role;
        QString name;
        QString description;
        QObject* object;
    };
    std::vector<Thing> things() const;
    QStringList names(QAccessible::Role role) const;
    bool shows(const QString& text) const;

    /// The item with that role and name; fails the test if there is none.
    QQuickItem& item(QAccessible::Role role, const QString& name) const;

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Holds the key down until it has been repeated five times.
    void hold(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// One repeat of a key that was pressed before: released and pressed again, as by a keyboard.
    void repeat(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    /// Calls `look` for every item of the window, including popups.
    void visit(const std::function<void(QQuickItem&)>& look) const;

    QQuickWindow& window() { return mainWindow.window(); }
    int requestCount() const { return static_cast<int>(transport.requests.size()); }

    /// The owner of the about box in the program.
    struct AboutOwner : support::Observable {
        support::Published<bool> showingAbout{*this, false};
    };

    api::APIKeyStore keys{client, credentials};
    fakes::FakeLinkOpener links;
    fakes::FakeLocaleText locale;
    std::shared_ptr<workspace::DashboardView> dashboard = std::make_shared<workspace::DashboardView>(
        workspace::DashboardView::Ports{main, timers, clock, credentials, keys, state, locale, links, api});
    workspace::AboutKestruneView about{{.shortVersion = "1.2",
                                           .buildNumber = "34",
                                           .websiteAddress = "https://site.example",
                                           .communityAddress = "https://community.example",
                                           .organisationAddress = "https://source.example"},
        links};
    AboutOwner aboutOwner;
    bridge::StatusMenuBridge menu{[this] { aboutOwner.showingAbout = true; }};
    MainWindow mainWindow{{dashboard, updates, about, aboutOwner.showingAbout, aboutOwner, menu}, main};
};

}  // namespace larkspan
