// The program taglie: nothing but the way into Comando.cpp, made safe before anything can fail.
#include "Comando.h"

namespace {

struct Inizio
{
    Inizio() noexcept { cli::PreparaFineImprovvisa(); }
};

// Before all other objects, of which the parser of the arguments has some that take memory.
[[gnu::init_priority(101)]] const Inizio inizio;

} // namespace

int main(int argc, char** argv)
{
    return cli::EseguiComando({argv + (argc > 0 ? 1 : 0), argv + argc});
}
