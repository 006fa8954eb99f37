#pragma once

#include <QtQml/qqmlregistration.h>

#include <memory>

#include "bridge/screens/ScreenBridge.h"
#include "bridge/values/ConfirmationValue.h"
#include "bridge/values/MarkerValue.h"
#include "workspace/SettingsView.h"

namespace larkspan::bridge {

/// The settings sheet's state for QML; texts and decisions are those of `workspace::SettingsView`. The key is only
/// taken, never given back: no property contains it.
class SettingsBridge : public ScreenBridge {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    /// Whether a typed key has been neither stored nor deleted.
    Q_PROPERTY(bool holdsKey READ holdsKey NOTIFY changed)
    Q_PROPERTY(bool hasExistingKey READ hasExistingKey NOTIFY changed)
    Q_PROPERTY(bool showsSavedKey READ showsSavedKey NOTIFY changed)
    Q_PROPERTY(bool showsField READ showsField NOTIFY changed)
    /// More than the longest key, so that a key that is too long can be noticed.
    Q_PROPERTY(int longestEntry READ longestEntry CONSTANT)
    Q_PROPERTY(bool isSaveEnabled READ isSaveEnabled NOTIFY changed)
    Q_PROPERTY(bool showsDeleteConfirmation READ showsDeleteConfirmation NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::ConfirmationValue deleteConfirmation READ deleteConfirmation CONSTANT)
    Q_PROPERTY(larkspan::bridge::MarkerValue marker READ marker NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::MarkerValue refusal READ refusal NOTIFY changed)
    Q_PROPERTY(larkspan::bridge::MarkerValue demoHint READ demoHint CONSTANT)
    Q_PROPERTY(larkspan::bridge::MarkerValue search READ search NOTIFY changed)

public:
    SettingsBridge(
        std::shared_ptr<workspace::SettingsView> settings, const ScreenUpdates& updates, QObject* parent = nullptr);

    bool holdsKey() const { return !settings_->apiKey->empty(); }
    bool hasExistingKey() const { return *settings_->hasExistingKey; }
    bool showsSavedKey() const { return settings_->showsSavedKey(); }
    bool showsField() const { return settings_->showsField(); }
    int longestEntry() const { return static_cast<int>(workspace::SettingsView::longestKey) + 1; }
    bool isSaveEnabled() const { return settings_->isSaveEnabled(); }
    bool showsDeleteConfirmation() const { return *settings_->showDeleteConfirmation; }
    ConfirmationValue deleteConfirmation() const
    {
        return ConfirmationValue::of(workspace::SettingsView::deleteConfirmation);
    }
    MarkerValue marker() const { return MarkerValue::of(settings_->marker()); }
    MarkerValue refusal() const { return MarkerValue::of(settings_->refusal()); }
    MarkerValue demoHint() const { return MarkerValue::of(settings_->demoHint()); }
    MarkerValue search() const { return MarkerValue::of(settings_->search()); }

    Q_INVOKABLE void edit(const QString& text);
    Q_INVOKABLE void saveAndVerify() { settings_->saveAndVerify(); }
    Q_INVOKABLE void confirmDelete() { settings_->confirmDelete(); }
    Q_INVOKABLE void cancelDelete() { settings_->cancelDelete(); }
    Q_INVOKABLE void deleteKey() { settings_->deleteKey(); }

private:
    std::shared_ptr<workspace::SettingsView> settings_;
};

}  // namespace larkspan::bridge
