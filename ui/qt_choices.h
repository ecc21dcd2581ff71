// SPDX-License-Identifier: MIT
// Further choices of the player, in "tide.ini".
#pragma once

#include <QSettings>
#include <memory>

#include "game/choices.h"

namespace tidewalk {

/// Keeps choices in "tide.ini" in the program folder, written at each change.
class QtChoices final : public Choices {
 public:
    /// Until a folder is named nothing is kept.
    void UseFolder(const QString& folder) {
        settings_ = std::make_unique<QSettings>(folder + "/tide.ini", QSettings::IniFormat);
    }

    std::string Get(std::string_view name, const std::string& otherwise) const override {
        if (settings_ == nullptr) return otherwise;
        return settings_->value(KeyOf(name), QString::fromStdString(otherwise)).toString().toStdString();
    }

    void Set(std::string_view name, const std::string& value) override {
        if (settings_ == nullptr) return;
        settings_->setValue(KeyOf(name), QString::fromStdString(value));
        settings_->sync();
    }

    void Refresh() override {
        if (settings_ != nullptr) settings_->sync();
    }

 private:
    static QString KeyOf(std::string_view name) {
        return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
    }

    std::unique_ptr<QSettings> settings_;
};

}  // namespace tidewalk
