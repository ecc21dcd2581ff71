// SPDX-License-Identifier: MIT
#include "ui/finish_pdf.h"

#include <QRegularExpression>
#include <QXmlStreamWriter>
#include <qpdf/Pipeline.hh>
#include <qpdf/Pl_Flate.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFWriter.hh>
#include <qpdf/QUtil.hh>
#include <stdexcept>

namespace tidewalk {

namespace {

constexpr int kSmallest = 9;  ///< the level at which streams are compressed
constexpr const char* kLanguage = "en";

/// Where the library's output goes on to a device of ours.
class DevicePipeline final : public Pipeline {
 public:
    explicit DevicePipeline(QIODevice& device) : Pipeline("document", nullptr), device_(device) {}

    void write(unsigned char const* data, size_t length) override {
        const auto wanted = static_cast<qint64>(length);
        if (device_.write(reinterpret_cast<const char*>(data), wanted) != wanted) {
            throw std::runtime_error(device_.errorString().toStdString());
        }
    }
    void finish() override {}

 private:
    QIODevice& device_;
};

/// The text in characters that XML can hold and strings of PDF show.
QString Plain(const QString& text) {
    QString plain = text;
    for (QChar& letter : plain) {
        if (letter.category() == QChar::Other_Control || letter.isNonCharacter()) letter = ' ';
    }
    return plain;
}

/// Writes an element of Dublin Core, as a list if `list` names one.
void WriteEntry(QXmlStreamWriter& xml, const QString& name, const QString& list, const QString& text) {
    static const QString kCore = "http://purl.org/dc/elements/1.1/";
    static const QString kResources = "http://www.w3.org/1999/02/22-rdf-syntax-ns#";
    if (text.isEmpty()) return;
    xml.writeStartElement(kCore, name);
    xml.writeStartElement(kResources, list);
    xml.writeStartElement(kResources, "li");
    if (list == "Alt") xml.writeAttribute("xml:lang", "x-default");
    xml.writeCharacters(Plain(text));
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeEndElement();
}

/// The properties once more, as catalogues read them.
std::string Xmp(const PdfProperties& properties, const QString& time) {
    const QByteArray packet("<?xpacket begin=\"\xEF\xBB\xBF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n");
    QByteArray body;
    QXmlStreamWriter xml(&body);
    const QString resources = "http://www.w3.org/1999/02/22-rdf-syntax-ns#";
    const QString basic = "http://ns.adobe.com/xap/1.0/";
    const QString pdf = "http://ns.adobe.com/pdf/1.3/";
    xml.writeNamespace("adobe:ns:meta/", "x");
    xml.writeStartElement("adobe:ns:meta/", "xmpmeta");
    xml.writeNamespace(resources, "rdf");
    xml.writeStartElement(resources, "RDF");
    xml.writeNamespace("http://purl.org/dc/elements/1.1/", "dc");
    xml.writeNamespace(basic, "xmp");
    xml.writeNamespace(pdf, "pdf");
    xml.writeStartElement(resources, "Description");
    xml.writeAttribute(resources, "about", "");
    WriteEntry(xml, "title", "Alt", properties.title);
    WriteEntry(xml, "creator", "Seq", properties.author);
    WriteEntry(xml, "description", "Alt", properties.subject);
    if (!properties.keywords.isEmpty()) xml.writeTextElement(pdf, "Keywords", Plain(properties.keywords));
    xml.writeTextElement(basic, "CreatorTool", properties.creator);
    xml.writeTextElement(basic, "CreateDate", time);
    xml.writeTextElement(basic, "ModifyDate", time);
    xml.writeEndDocument();
    return (packet + body + "\n<?xpacket end=\"r\"?>").toStdString();
}

void SetProperties(QPDF& document, const PdfProperties& properties) {
    const auto now = QUtil::get_current_qpdf_time();
    const auto date = QPDFObjectHandle::newString(QUtil::qpdf_time_to_pdf_time(now));
    QPDFObjectHandle info = document.getTrailer().getKey("/Info");
    const auto set = [&info](const char* key, const QString& text) {
        if (!text.isEmpty()) return info.replaceKey(key, QPDFObjectHandle::newUnicodeString(Plain(text).toStdString()));
        info.removeKey(key);
    };
    set("/Title", properties.title);
    set("/Author", properties.author);
    set("/Subject", properties.subject);
    set("/Keywords", properties.keywords);
    set("/Creator", properties.creator);
    info.replaceKey("/CreationDate", date);
    info.replaceKey("/ModDate", date);
    QPDFObjectHandle root = document.getRoot();
    root.replaceKey("/Lang", QPDFObjectHandle::newString(kLanguage));
    const QString time = QString::fromStdString(QUtil::qpdf_time_to_iso8601(now));
    QPDFObjectHandle xmp = QPDFObjectHandle::newStream(&document, Xmp(properties, time));
    xmp.getDict().replaceKey("/Type", QPDFObjectHandle::newName("/Metadata"));
    xmp.getDict().replaceKey("/Subtype", QPDFObjectHandle::newName("/XML"));
    root.replaceKey("/Metadata", xmp);
    if (properties.title.isEmpty()) return;
    // Windows are to bear the title instead of the file's name.
    QPDFObjectHandle preferences = QPDFObjectHandle::newDictionary();
    preferences.replaceKey("/DisplayDocTitle", QPDFObjectHandle::newBool(true));
    root.replaceKey("/ViewerPreferences", preferences);
}

/// Qt takes the glyph of the blank for that of the tab, which fonts draw with the same one: what is copied out of the
/// document, or looked for in it, would have tabs between its words.
void NameBlanks(QPDF& document) {
    static const QRegularExpression kList(R"(\[[^\]]*\]|<\w{4}>\s*<\w{4}>\s*<0009>)");
    for (QPDFObjectHandle object : document.getAllObjects()) {
        if (!object.isDictionary() || !object.getKey("/ToUnicode").isStream()) continue;
        QPDFObjectHandle table = object.getKey("/ToUnicode");
        const auto data = table.getStreamData();
        const QString text = QString::fromLatin1(reinterpret_cast<const char*>(data->getBuffer()),
                                                 static_cast<qsizetype>(data->getSize()));
        QString named;
        qsizetype from = 0;
        for (const QRegularExpressionMatch& match : kList.globalMatch(text)) {
            QString values = match.captured();
            const qsizetype last = values.startsWith('[') ? 0 : values.lastIndexOf('<');
            values = values.left(last) + values.mid(last).replace("<0009>", "<0020>");
            named += text.mid(from, match.capturedStart() - from) + values;
            from = match.capturedEnd();
        }
        named += text.mid(from);
        table.replaceStreamData(named.toStdString(), QPDFObjectHandle::newNull(), QPDFObjectHandle::newNull());
    }
}

}  // namespace

QString FinishPdf(QByteArrayView raw, const PdfProperties& properties, QIODevice& out) {
    try {
        QPDF document;
        document.setSuppressWarnings(true);
        // What needs repair is not what was drawn.
        document.setAttemptRecovery(false);
        document.processMemoryFile("document", raw.data(), static_cast<std::size_t>(raw.size()));
        SetProperties(document, properties);
        NameBlanks(document);
        DevicePipeline pipeline(out);
        Pl_Flate::setCompressionLevel(kSmallest);
        QPDFWriter writer(document);
        writer.setOutputPipeline(&pipeline);
        writer.setObjectStreamMode(qpdf_o_generate);
        writer.setRecompressFlate(true);
        writer.write();
    } catch (const std::exception& failure) {
        return QString::fromUtf8(failure.what());
    }
    return {};
}

}  // namespace tidewalk
