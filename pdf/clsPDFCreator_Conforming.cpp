// A conforming document as a whole: its properties, its end, its identifier. _Drawings.cpp has what
// its drawings use, _ConformingFonts.cpp and _ConformingMetadata.cpp the rest.

#include "DateText.h"
#include "Identifier.h"
#include "clsPDFCreator_State.h"

namespace {

// A path's last part: where a document lies is no part of what it is.
std::string_view LastPart(std::string_view path)
{
    const auto end = path.find_last_of("/\\");
    return end == std::string_view::npos ? path : path.substr(end + 1);
}

} // namespace

// Properties that are empty are left out.
std::string clsPDFCreator::State::prConformingInfo() const
{
    std::string text = "<<";
    const auto add = [this, &text](std::string_view key, const std::string& value) {
        if (!value.empty()) text.append(" /").append(key).append(" ").append(prString(value));
    };
    add("Title", DocProperties.Title);
    add("Author", DocProperties.Author);
    add("Subject", DocProperties.Subject);
    add("Keywords", DocProperties.Keywords);
    add("Creator", DocProperties.Creator);
    add("Producer", DocProperties.Producer);
    add("CreationDate", pdf::prDateWithOffset(Created));
    return text + " >>";
}

// A byte 0 behind each part: no two lists of texts look alike.
std::string clsPDFCreator::State::prDocumentId() const
{
    const auto& texts = OpenedWith;
    std::string text = pdf::prDateWithOffset(Created) + '\0';
    text.append(LastPart(FileName)).push_back('\0');
    for (const std::string* part : {&texts.Title, &texts.Author, &texts.Subject, &texts.Keywords,
                                    &texts.Creator, &texts.Producer}) {
        text.append(*part).push_back('\0');
    }
    return pdf::prIdentifier(text);
}

void clsPDFCreator::State::prEndConformingFile()
{
    prWriteGradients();
    const std::int32_t outlines = Bookmarks.empty() ? 0 : prWriteOutlines();
    prWriteConformingFonts();
    prWriteImages();
    prWriteUnmade();
    const std::int32_t metadata = prWriteConformingMetadata();
    prWriteConformingCatalog(outlines, metadata);
    prWriteConformingPageTree();
    const std::string id = prDocumentId();
    Out.prWriteTrailer("/Info " + std::to_string(ConformingInfo) + " 0 R /Root " +
                       std::to_string(ConformingCatalog) + " 0 R /ID [<" + id + "> <" + id + ">]");
}

void clsPDFCreator::State::prWriteConformingCatalog(std::int32_t outlines, std::int32_t metadata)
{
    std::string text = "<< /Type /Catalog /Pages " + std::to_string(ConformingPageTree) + " 0 R";
    if (outlines != 0) text.append(" /Outlines " + std::to_string(outlines) + " 0 R");
    text.append(" /PageLayout /OneColumn /PageMode ");
    text.append(outlines != 0 ? "/UseOutlines" : "/UseNone");
    if (!Language.empty()) text.append(" /Lang ").append(prString(Language));
    if (!PageLabels.empty())
        text.append(" /PageLabels << /Nums [").append(PageLabels).append("] >>");
    text.append(" /ViewerPreferences << /DisplayDocTitle true >> /Metadata ");
    prWriteDictionary(ConformingCatalog, text + std::to_string(metadata) + " 0 R >>");
}

void clsPDFCreator::State::prWriteConformingPageTree()
{
    std::string text = "<< /Type /Pages /Count " + std::to_string(PageCount) + " /MediaBox ";
    text.append(prBox(0));
    if (PageMargin != 0) text.append(" /CropBox ").append(prBox(PageMargin));
    if (DocOrientation == 1) text.append(" /Rotate 90");
    prWriteDictionary(ConformingPageTree, text.append(" /Kids [").append(Kids).append("] >>"));
}
