// SPDX-License-Identifier: MIT
// The last touch to a PDF document that Qt has written.
#pragma once

#include <QByteArrayView>
#include <QIODevice>
#include <QString>

namespace tidewalk {

/// What a document tells of itself; what is empty it does not mention.
struct PdfProperties {
    QString title;
    QString author;
    QString subject;
    QString keywords;
    QString creator;  ///< the program
};

/// Writes the PDF document in `raw` to `out` anew: as small as it can be without a loss, in English, with these
/// properties. Streams are read one at a time, so that `raw` may be a mapped file of any length. Returns "", or why
/// that failed; what is in `out` is then no document.
QString FinishPdf(QByteArrayView raw, const PdfProperties& properties, QIODevice& out);

}  // namespace tidewalk
