// Somebody else's deed at the worst moment: between looking at a name and opening it.
#pragma once

#include <functional>

namespace aiuti {

// While this lives, gesto is done just before the next opening of a file by code of this program
// (not by the libraries it uses), once.
class PrimaDellApertura
{
public:
    explicit PrimaDellApertura(std::function<void()> gesto);
    ~PrimaDellApertura();
    PrimaDellApertura(const PrimaDellApertura&) = delete;
    PrimaDellApertura& operator=(const PrimaDellApertura&) = delete;

    // Whether it has been done.
    static bool Avvenuto();
};

} // namespace aiuti
