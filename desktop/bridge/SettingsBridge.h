#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/ChangeNotice.h"
#include "bridge/ToneNames.h"
#include "support/Observable.h"
#include "workspace/Settings.h"

namespace larkspan::bridge {

/// The settings sheet's state for QML; everything here is worded and decided by `workspace::Settings`.
/// The key goes in and never out: no property holds it.
class SettingsBridge : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool hasExistingKey READ hasExistingKey NOTIFY changed)
    Q_PROPERTY(bool showsSavedKey READ showsSavedKey NOTIFY changed)
    Q_PROPERTY(bool isSaveEnabled READ isSaveEnabled NOTIFY changed)
    Q_PROPERTY(bool showsDeleteConfirmation READ showsDeleteConfirmation NOTIFY changed)
    Q_PROPERTY(QString markerSymbol READ markerSymbol NOTIFY changed)
    Q_PROPERTY(QString markerText READ markerText NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::Tone::Value markerTone READ markerTone NOTIFY changed)
    Q_PROPERTY(bool markerShowsProgress READ markerShowsProgress NOTIFY changed)

public:
    SettingsBridge(std::shared_ptr<workspace::Settings> settings, platform::Executor& main, QObject* parent = nullptr);

    bool hasExistingKey() const { return *settings_->hasExistingKey; }
    bool showsSavedKey() const { return settings_->showsSavedKey(); }
    bool isSaveEnabled() const { return settings_->isSaveEnabled(); }
    bool showsDeleteConfirmation() const { return *settings_->showDeleteConfirmation; }
    QString markerSymbol() const { return QString::fromStdString(settings_->marker().symbol); }
    QString markerText() const { return QString::fromStdString(settings_->marker().text); }
    Tone::Value markerTone() const { return toneOf(settings_->marker().tone); }
    bool markerShowsProgress() const { return settings_->marker().showsProgress; }

    Q_INVOKABLE void edit(const QString& text) { settings_->edit(text.toStdString()); }
    Q_INVOKABLE void saveAndVerify() { settings_->saveAndVerify(); }
    Q_INVOKABLE void confirmDelete() { settings_->confirmDelete(); }
    Q_INVOKABLE void cancelDelete() { settings_->cancelDelete(); }
    Q_INVOKABLE void deleteKey() { settings_->deleteKey(); }

signals:
    void changed();
    /// The key has been stored or deleted; the field is to be empty.
    void fieldCleared();

private:
    void tellChanges();

    std::shared_ptr<workspace::Settings> settings_;
    bool fieldHoldsText_ = false;
    ChangeNotice notice_;
    support::Subscription subscription_;
};

}  // namespace larkspan::bridge
