// SPDX-License-Identifier: MIT
// Letting clicks, keys and repaints through while a routine runs.
#pragma once

#include <QCoreApplication>

#include "ui/handlers.h"

namespace tidewalk {

class QtPendingEvents final : public PendingEvents {
 public:
    explicit QtPendingEvents(Handlers& handlers) : handlers_(handlers) {}

    /// The windows show what the game holds now before events are let through.
    void DoEvents() override {
        if (handlers_.game() != nullptr && !handlers_.game()->job.Ending()) emit handlers_.Changed();
        QCoreApplication::processEvents();
    }

    void Repaint() override { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }

 private:
    Handlers& handlers_;
};

}  // namespace tidewalk
