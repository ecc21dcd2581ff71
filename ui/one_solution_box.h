// SPDX-License-Identifier: MIT
// The tick of "One solution", which a grade sets for itself.
#pragma once

#include <QCheckBox>

namespace tidewalk {

/// Ticked while it is wanted or while a grade is: only puzzles with one solution have one. The player's own wish is
/// remembered meanwhile.
class OneSolutionBox final : public QCheckBox {
 public:
    explicit OneSolutionBox(const QString& text, QWidget* parent = nullptr);

    void SetWanted(bool wanted);
    bool Wanted() const { return wanted_; }

    /// Takes note of whether any grade will do.
    void FollowGrade(bool any);

 private:
    bool wanted_ = true;
    bool anyGrade_ = true;
};

}  // namespace tidewalk
