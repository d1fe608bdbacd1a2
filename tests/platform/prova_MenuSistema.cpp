// The commands of the system menu are numbers of the system: they must be these.

#include "MenuSistema.h"

#include <gtest/gtest.h>

#include <cstdint>

TEST(MenuSistema, IlComandoSonoSediciBitAllargatiColSegno)
{
    const auto sedici = static_cast<std::int16_t>(0xF000); // the Size command
    EXPECT_EQ(ComandoDimensiona, static_cast<std::uint32_t>(std::int32_t{sedici}));
    EXPECT_EQ(PerComando, 0U);
}
