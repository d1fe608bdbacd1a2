// The metadata of a conforming document: an XMP packet in UTF-8 (ISO 32000-1, 14.3.2) that says
// what the properties say.

#include "DateText.h"
#include "Windows1252.h"
#include "clsPDFCreator_State.h"

namespace {

bool IsInXml(char32_t character)
{
    constexpr char32_t firstNone = 0xFFFE; // it and the next one are no characters
    if (character == '\t' || character == '\n' || character == '\r') return true;
    return character >= ' ' && character != firstNone && character != firstNone + 1 &&
           character != NonValido;
}

// What XML cannot hold is "?". A CR alone would be read as another line end.
std::string InXml(std::string_view utf8)
{
    std::string xml;
    while (!utf8.empty()) {
        const char32_t character = PrendiCarattere(utf8);
        if (character == '&') xml.append("&amp;");
        else if (character == '<') xml.append("&lt;");
        else if (character == '>') xml.append("&gt;");
        else if (character == '\r') xml.append("&#13;");
        else AggiungiUtf8(xml, IsInXml(character) ? character : U'?');
    }
    return xml;
}

// An element of the packet, on a line of its own; nothing for an empty text.
std::string Element(const std::string& name, std::string_view text)
{
    if (text.empty()) return "";
    return "<" + name + ">" + InXml(text) + "</" + name + ">\n";
}

// The same for an element that is a list: of texts by language, or of names.
std::string Listed(const std::string& name, const std::string& list, const std::string& attribute,
                   std::string_view text)
{
    if (text.empty()) return "";
    return "<" + name + "><rdf:" + list + "><rdf:li" + attribute + ">" + InXml(text) +
           "</rdf:li></rdf:" + list + "></" + name + ">\n";
}

constexpr const char* Start =
    "<?xpacket begin=\"\xEF\xBB\xBF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
    "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
    "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
    "<rdf:Description rdf:about=\"\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\" "
    "xmlns:pdf=\"http://ns.adobe.com/pdf/1.3/\" xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\">\n";

constexpr const char* End = "</rdf:Description>\n"
                            "</rdf:RDF>\n"
                            "</x:xmpmeta>\n"
                            "<?xpacket end=\"r\"?>";

} // namespace

std::string clsPDFCreator::State::prConformingPacket() const
{
    const std::string anyLanguage = " xml:lang=\"x-default\"";
    std::string packet = Start;
    packet.append(Element("dc:format", "application/pdf"));
    packet.append(Listed("dc:title", "Alt", anyLanguage, OpenedWith.Title));
    packet.append(Listed("dc:creator", "Seq", "", OpenedWith.Author));
    packet.append(Listed("dc:description", "Alt", anyLanguage, OpenedWith.Subject));
    packet.append(Listed("dc:language", "Bag", "", Language));
    packet.append(Element("pdf:Keywords", OpenedWith.Keywords));
    packet.append(Element("pdf:Producer", OpenedWith.Producer));
    packet.append(Element("xmp:CreatorTool", OpenedWith.Creator));
    packet.append(Element("xmp:CreateDate", pdf::prIsoDate(Created)));
    return packet + End;
}

std::int32_t clsPDFCreator::State::prWriteConformingMetadata()
{
    const std::string packet = prConformingPacket();
    const std::int32_t number = Out.prInitObj(0);
    Out.prPrint("<< /Type /Metadata /Subtype /XML /Length ",
                static_cast<std::int32_t>(packet.size()), " >>");
    Out.prBeginStream();
    Out.prPrint(packet);
    Out.prEndStream();
    return number;
}
