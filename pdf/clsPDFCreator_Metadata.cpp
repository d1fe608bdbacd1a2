// The metadata stream: an XMP packet with what the information dictionary says.

#include "Windows1252.h"
#include "clsPDFCreator_State.h"

namespace {

// The text (UTF-8) of an element, as far as Windows-1252 has it: XML's own characters escaped, all
// above 127 as references, so that the packet is plain ASCII; what XML forbids is "?".
std::string InXml(std::string_view text)
{
    constexpr unsigned char firstPrintable = 0x20;
    constexpr unsigned char lastAscii = 0x7F;
    std::string xml;
    for (const char c : InWindows1252(text)) {
        const auto code = static_cast<unsigned char>(c);
        const bool space = c == '\t' || c == '\n' || c == '\r';
        if (c == '&') xml.append("&amp;");
        else if (c == '<') xml.append("&lt;");
        else if (c == '>') xml.append("&gt;");
        else if (code < firstPrintable && !space) xml.push_back('?');
        else if (code <= lastAscii) xml.push_back(c);
        else
            xml.append("&#")
                .append(std::to_string(static_cast<std::uint32_t>(DaWindows1252(code))))
                .append(";");
    }
    return xml;
}

// Collects the packet's lines, joined by CR.
class Packet
{
public:
    void Line(std::string_view line)
    {
        if (!m_text.empty()) m_text.push_back('\r');
        m_text.append(line);
    }

    void BeginDescription(std::string_view prefix, std::string_view space)
    {
        m_prefix = prefix;
        Line(" <rdf:Description about=''");
        Line("  xmlns='" + std::string(space) + "'");
        Line("  xmlns:" + m_prefix + "='" + std::string(space) + "'>");
    }

    void EndDescription() { Line(" </rdf:Description>"); }

    void Element(std::string_view name, std::string_view text)
    {
        const std::string tag = m_prefix + ":" + std::string(name);
        Line("  <" + tag + ">" + InXml(text) + "</" + tag + ">");
    }

    // An element with its text in the default language.
    void Alternatives(std::string_view name, std::string_view text)
    {
        const std::string tag = m_prefix + ":" + std::string(name);
        Line("  <" + tag + ">");
        Line("   <rdf:Alt>");
        Line("   <rdf:li xml:lang='x-default'>" + InXml(text) + "</rdf:li>");
        Line("   </rdf:Alt>");
        Line("  </" + tag + ">");
    }

    const std::string& Text() const { return m_text; }

private:
    std::string m_text;
    std::string m_prefix;
};

} // namespace

std::string clsPDFCreator::State::prPacketOfLength(std::size_t length) const
{
    Packet packet;
    packet.Line("<?xpacket begin='' id='W5M0MpCehiHzreSzNTczkc9d' bytes='" +
                std::to_string(length) + "'?>");
    packet.Line("<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'");
    packet.Line(" xmlns:iX='http://ns.adobe.com/iX/1.0/'>");

    // Author, creator and producer are the writer's own on purpose, and dates keep their PDF form:
    // the packet tells what made the file, whatever the document's properties say.
    packet.BeginDescription("pdf", "http://ns.adobe.com/pdf/1.3/");
    packet.Element("Producer", ClassBanner);
    packet.Element("Author", DefaultAuthor);
    packet.Element("Creator", DefaultCreator);
    packet.Element("ModDate", CreationDate);
    packet.Element("Title", OpenedWith.Title);
    packet.Element("CreationDate", CreationDate);
    packet.Element("Subject", OpenedWith.Subject);
    packet.Element("Keywords", OpenedWith.Keywords);
    packet.EndDescription();

    packet.BeginDescription("xap", "http://ns.adobe.com/xap/1.0/");
    packet.Element("Author", DefaultAuthor);
    packet.Element("ModifyDate", CreationDate);
    packet.Alternatives("Title", OpenedWith.Title);
    packet.Element("CreateDate", CreationDate);
    packet.Alternatives("Description", OpenedWith.Subject);
    packet.Element("MetadataDate", CreationDate);
    packet.EndDescription();

    packet.BeginDescription("dc", "http://purl.org/dc/elements/1.1/");
    packet.Element("creator", DefaultCreator);
    packet.Alternatives("title", OpenedWith.Title);
    packet.Alternatives("description", OpenedWith.Subject);
    packet.EndDescription();

    packet.Line("</rdf:RDF>");
    packet.Line("<?xpacket end='r'?>");
    return packet.Text();
}

// The packet names its own length, which depends on how many digits that number has.
std::string clsPDFCreator::State::prXMPPacket() const
{
    constexpr std::size_t guess = 1000;
    std::size_t length = guess;
    std::string packet = prPacketOfLength(length);
    while (packet.size() != length) {
        length = packet.size();
        packet = prPacketOfLength(length);
    }
    return packet;
}

std::int32_t clsPDFCreator::State::prWriteMetadata()
{
    const std::int32_t number = Out.prInitObj(0);
    Out.prPrint("<< /Type /Metadata /Subtype /XML /Length ", number + 1, " 0 R >>");
    Out.prBeginStream();
    Out.prWriteRaw(prXMPPacket());
    Out.prEndStream();
    Out.prWriteStreamLength();
    return number;
}
