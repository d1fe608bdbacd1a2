// Plays a script of calls on a PDF writer.
#pragma once

#include <string>
#include <vector>

namespace aiuti {

// What a script led to.
struct Recita
{
    std::string Pdf;                  // the bytes of its document
    std::vector<std::string> Mancate; // expectations that were not met
};

// Plays a script: a JSON array of calls, each an array of an operation's name and its arguments.
// Beside the operations of clsPDFCreator: ["Clock", "yyyymmddhhmmss", minutes east], and ["Expect",
// operation, arguments..., result]. The file goes into cartella (with a final separator) under the
// name given to BeginDoc; BeginDocTo takes "stream" or "sink". std::invalid_argument for an
// operation that does not exist.
Recita RecitaCopione(const std::string& copione, const std::string& cartella);

} // namespace aiuti
