// SPDX-License-Identifier: MIT
#include "ui/one_solution_box.h"

#include "ui/tool_tip.h"

namespace tidewalk {

OneSolutionBox::OneSolutionBox(const QString& text, QWidget* parent) : QCheckBox(text, parent) {
    setChecked(true);
    GiveToolTip(*this, tr("Make puzzles with exactly one solution|A puzzle with a grade always has one"));
    connect(this, &QCheckBox::clicked, this, [this](bool on) { wanted_ = on; });
}

void OneSolutionBox::SetWanted(bool wanted) {
    wanted_ = wanted;
    FollowGrade(anyGrade_);
}

void OneSolutionBox::FollowGrade(bool any) {
    anyGrade_ = any;
    setEnabled(any);
    setChecked(wanted_ || !any);
}

}  // namespace tidewalk
