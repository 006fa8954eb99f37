#pragma once

#include <QObject>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include "bridge/ChangeNotice.h"
#include "support/Observable.h"
#include "workspace/AboutKestruneView.h"

namespace larkspan::bridge {

/// The about box for QML; everything here is worded by `workspace::AboutKestruneView`.
class AboutBridge : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool isShowing READ isShowing NOTIFY changed)
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString versionText READ versionText CONSTANT)
    Q_PROPERTY(QString text READ text CONSTANT)
    /// A map with symbol, title and subtitle for each link.
    Q_PROPERTY(QVariantList links READ links CONSTANT)

public:
    /// `showing` is a field of `owner`.
    AboutBridge(const workspace::AboutKestruneView& about, support::Published<bool>& showing,
        support::Observable& owner, platform::Executor& main, QObject* parent = nullptr);

    bool isShowing() const { return *showing_; }
    QString title() const;
    QString versionText() const { return QString::fromStdString(about_.versionText()); }
    QString text() const;
    QVariantList links() const;

    Q_INVOKABLE void openLink(int place);
    Q_INVOKABLE void close() { showing_ = false; }

signals:
    void changed();

private:
    const workspace::AboutKestruneView& about_;
    support::Published<bool>& showing_;
    ChangeNotice notice_;
    support::Subscription subscription_;
};

}  // namespace larkspan::bridge
