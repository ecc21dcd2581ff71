// SPDX-License-Identifier: MIT
// A start of the program looks for a window that is open already.
#pragma once

#include <QString>
#include <optional>
#include <string>

#include "ui/local_socket.h"
#include "ui/summons.h"

namespace tidewalk {

/// The name by which windows and starts of one user find each other that have the same program folder, by whatever
/// path, and show on the same display: nobody looks for a window on another one.
std::string MeetingPlace(const QString& folder);

struct Arrival {
    bool isTaken = false;  ///< a window took what was handed over: there is nothing left to do
    std::optional<LocalSocket>
        listener;  ///< otherwise where the window of this start is to hear of later ones, if it can
};

/// Hands the summons to the window at this place that was active last. Without a summons the start gets a window of
/// its own whatever is open.
///
/// A window that does not answer within two seconds is left alone. One that answers and is busy is waited for, however
/// long that takes; when it ends before it could take the file, the next one gets it. Of several starts at once one
/// gets a window, and the others wait for it. No file is taken by one window and handed to another all the same.
Arrival Arrive(const std::string& place, const std::optional<Summons>& summons);

}  // namespace tidewalk
