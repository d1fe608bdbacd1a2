// A program of somebody else's that uses the installed library; prova_libreria.py builds it.
#include <clsPDFCreator.h>

#include <cstdio>

// Writes a page under the name given; 2 and the reason when that cannot be.
int main(int argc, char** argv)
{
    if (argc != 2) return 1;
    try {
        clsPDFCreator pdf;
        pdf.SetScale(3);
        pdf.BeginDoc(argv[1]);
        pdf.BeginPage();
        pdf.SetFont("Times New Roman", 24);
        pdf.DrawText(10.5, 5, "Buongiorno", 4);
        pdf.EndPage();
        pdf.EndDoc();
    } catch (const ErroreRuntime& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
    return 0;
}
