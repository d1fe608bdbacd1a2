// The fonts that every reader has, under the names and with the measures that a file tells them by.
#pragma once

#include "FontWidths.h"

#include <string>

namespace pdf {

// What a conforming document says of one of the 14 (ISO 32000-1, 9.6.2.2).
struct StandardFace
{
    // "Helvetica-BoldOblique": what every reader knows the font by.
    const char* Name;

    // From /Flags on, as it stands in the font's descriptor (9.8), /FontName and its end apart. The
    // measures are those of the fonts' published metrics.
    const char* Descriptor;

    bool OwnEncoding; // Symbol and ZapfDingbats; all others are in WinAnsiEncoding
};

// The face of a family. The last two families have no bold and no italic one.
const StandardFace& prStandardFace(Family family, bool bold, bool italic);

} // namespace pdf
