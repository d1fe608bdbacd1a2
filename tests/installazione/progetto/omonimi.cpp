// A program that has names of its own which the PDF writer has inside, too: a type, a function and
// a variable of other kinds and sizes. Writes a document; 0 when everything is whose it should be.

#include <clsPDFCreator.h>

#include <array>
#include <cstdio>
#include <string>

namespace pdf {

class Objects
{
public:
    void prEndObj() { ++m_ended; }
    void prWriteRaw(std::string_view text);
    int Ended() const { return m_ended; }

private:
    int m_ended = 0;
};

void Objects::prWriteRaw(std::string_view)
{
    m_ended = -1;
}

std::string prNumber(double, int)
{
    return "mine";
}

} // namespace pdf

std::array<long, 100> CalendarioInUso{};

std::int16_t Intero16(double)
{
    return 16;
}

int main(int argc, char** argv)
{
    if (argc != 2) return 1;
    try {
        clsPDFCreator writer;
        writer.BeginDoc(argv[1]);
        writer.BeginPage();
        writer.SetFont("Times New Roman", 24);
        writer.DrawText(100.125F, 100, "Buongiorno");
        writer.EndPage();
        writer.EndDoc();
    } catch (const ErroreRuntime& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
    pdf::Objects own;
    own.prEndObj();
    for (const long value : CalendarioInUso) {
        if (value != 0) return 3;
    }
    return own.Ended() == 1 && Intero16(1) == 16 && pdf::prNumber(1, 1) == "mine" ? 0 : 4;
}
