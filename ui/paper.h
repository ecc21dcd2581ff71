// SPDX-License-Identifier: MIT
// Sheets of paper: what fits on them, and documents made of them.
#pragma once

#include <QPageSize>
#include <QPagedPaintDevice>
#include <memory>
#include <string>

#include "game/output.h"

namespace tidewalk {

/// A4, or Letter where `wanted` or, without a wish, the country's measures say so.
Paper UsualPaper(const QPageSize& wanted = QPageSize());

/// Lays `device` out for sheets that are drawn on from their very corner.
void UseWholeSheets(QPagedPaintDevice& device, const SheetFormat& format);

/// The sheet that the device is laid out for. A quarter of an inch, or as much as the device needs, cannot be printed
/// on at each side.
Sheet SheetOf(const QPagedPaintDevice& device);

/// Begins a PDF document that appears at `setup.file`, complete, at its end; without a format on the country's paper,
/// upright. Nothing when the file cannot be written; `error` then tells why.
std::unique_ptr<PrintDocument> BeginPdf(const DocumentSetup& setup, std::string& error);

}  // namespace tidewalk
