#pragma once

#include <QList>
#include <QtQml/qqmlregistration.h>

#include "bridge/screens/ScreenBridge.h"
#include "bridge/values/LinkValue.h"
#include "workspace/AboutKestruneView.h"

namespace larkspan::bridge {

/// The about box for QML; texts are those of `workspace::AboutKestruneView`.
class AboutKestruneBridge : public ScreenBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool isShowing READ isShowing NOTIFY changed)
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString versionText READ versionText CONSTANT)
    Q_PROPERTY(QString text READ text CONSTANT)
    Q_PROPERTY(QList<larkspan::bridge::LinkValue> links READ links CONSTANT)

public:
    /// `showing` is a field of `owner`.
    AboutKestruneBridge(const workspace::AboutKestruneView& about, support::Published<bool>& showing,
        support::Observable& owner, const ScreenUpdates& updates, QObject* parent = nullptr);

    bool isShowing() const { return *showing_; }
    QString title() const;
    QString versionText() const { return words(about_.versionText()); }
    QString text() const;
    QList<LinkValue> links() const;

    Q_INVOKABLE void openLink(int place);
    Q_INVOKABLE void close() { showing_ = false; }

private:
    const workspace::AboutKestruneView& about_;
    support::Published<bool>& showing_;
};

}  // namespace larkspan::bridge
