// SPDX-License-Identifier: MIT
// Sheets of paper: what fits on them, and documents made of them.
#pragma once

#include <QPageLayout>
#include <QPageSize>
#include <QPagedPaintDevice>
#include <memory>
#include <string>

#include "game/output.h"

namespace tidewalk {

/// A4, or Letter where `wanted` or, without a wish, the country's measures say so.
QPageSize UsualPaper(const QPageSize& wanted = QPageSize());

/// Lays `device` out for sheets of `paper` that are drawn on from their very corner.
void UseWholeSheets(QPagedPaintDevice& device, const QPageSize& paper,
                    QPageLayout::Orientation orientation = QPageLayout::Portrait);

/// The rectangle of the device's sheet that can be printed on, in twips: a quarter of an inch, or as much as the device
/// needs, stays free on each side.
Surface::Area PrintableArea(const QPagedPaintDevice& device);

/// Begins a PDF document that appears at `path`, complete, at its end. Nothing when the file cannot be written; `error`
/// then tells why.
std::unique_ptr<PrintDocument> BeginPdf(const std::string& path, std::string& error,
                                        QPageLayout::Orientation orientation = QPageLayout::Portrait);

}  // namespace tidewalk
