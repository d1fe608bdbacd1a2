#include "Esecuzione.h"

int main(int argc, char** argv)
{
    return cli::EseguiComando({argv + (argc > 0 ? 1 : 0), argv + argc});
}
