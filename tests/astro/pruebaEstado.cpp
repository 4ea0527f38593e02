// The day curves and the skyline in memory.
#include "PerfilHorizonte.h"
#include "literalAstro.h"
#include "modAstro.h"
#include "modAstroEstado.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

using namespace modAstroEstado;

class Curvas : public ::testing::Test
{
protected:
    void SetUp() override { OlvidarCurvasDia(); }
    void TearDown() override { OlvidarCurvasDia(); }
};

TEST_F(Curvas, CaducadasAntesDeCalcular)
{
    EXPECT_FALSE(TrayectoriasValidas());
    EXPECT_TRUE(CurvasDiaCaducadas(2026, 3, 20, 40, -3, 1));
    EXPECT_TRUE(CurvasDiaCaducadas(0, 0, 0, 0, 0, 0)) << "the empty key serves nothing";
}

TEST_F(Curvas, LaClaveAdmiteUnPocoDeMovimiento)
{
    CalcularCurvasDia(2026, 3, 20, 40, -3, 1);
    EXPECT_TRUE(TrayectoriasValidas());
    EXPECT_FALSE(CurvasDiaCaducadas(2026, 3, 20, 40, -3, 1));
    EXPECT_FALSE(CurvasDiaCaducadas(2026, 3, 20, 40.00009, -3.00009, 1.0009));
    EXPECT_TRUE(CurvasDiaCaducadas(2026, 3, 20, 40.00011, -3, 1));
    EXPECT_TRUE(CurvasDiaCaducadas(2026, 3, 20, 40, -3.00011, 1));
    EXPECT_TRUE(CurvasDiaCaducadas(2026, 3, 20, 40, -3, 1.0011));
    EXPECT_TRUE(CurvasDiaCaducadas(2026, 3, 21, 40, -3, 1));
    EXPECT_TRUE(CurvasDiaCaducadas(2026, 4, 20, 40, -3, 1));
    EXPECT_TRUE(CurvasDiaCaducadas(2027, 3, 20, 40, -3, 1));
    EXPECT_TRUE(CurvasDiaCaducadas(2026, 3, 20, std::numeric_limits<double>::quiet_NaN(), -3, 1));
}

TEST_F(Curvas, CadaMuestraEstaADiezMinutosDeLaAnterior)
{
    for (const double zona : {-7.0, 0.0, 5.5}) {
        CalcularCurvasDia(2026, 6, 21, 51.5, -0.1, zona);
        const double jd0 = modAstro::DiaJuliano(2026, 6, 21, 0) - zona / 24;
        for (int i = 0; i < kMuestrasDia; ++i)
            for (const bool luna : {false, true}) {
                double altitud, azimut;
                literal::AzAltCuerpo(jd0 + i / 144.0, 51.5, -0.1, luna, altitud, azimut);
                const Trayectoria& t = luna ? TrayectoriaLuna() : TrayectoriaSol();
                ASSERT_NEAR(t.altitud[i], altitud, 1e-9) << i;
                ASSERT_NEAR(std::remainder(t.azimut[i] - azimut, 360.0) * std::cos(altitud * 0.01745), 0,
                            1e-9)
                    << i;
            }
    }
}

class Perfil : public ::testing::Test
{
protected:
    void SetUp() override
    {
        for (int i = 0; i < kMuestrasHorizonte; ++i)
            altitudes[i] = i * 0.1 - 5;
        BorrarPerfil();
    }
    void TearDown() override { BorrarPerfil(); }

    std::array<double, kMuestrasHorizonte> altitudes{};
};

TEST_F(Perfil, SinPerfilTodoEsCero)
{
    EXPECT_FALSE(PerfilEnMemoria().valido);
    EXPECT_EQ(HorizonteEnAzimut(123), 0.0);
    EXPECT_FALSE(HorizonteValidoPara(0, 0));
    double bajo, alto;
    LimitesHorizonte(bajo, alto);
    EXPECT_EQ(bajo, 0.0);
    EXPECT_EQ(alto, 0.0);
}

TEST_F(Perfil, InterpolaEnCirculo)
{
    EstablecerPerfil(altitudes, 40, -3);
    EXPECT_EQ(HorizonteEnAzimut(0), -5.0);
    EXPECT_NEAR(HorizonteEnAzimut(90), 180 * 0.1 - 5, 1e-12);
    EXPECT_NEAR(HorizonteEnAzimut(90.25), 180.5 * 0.1 - 5, 1e-12);
    // Between index 719 (66.9 degrees) and index 0 (-5): 359.9 is four fifths of the way.
    EXPECT_NEAR(HorizonteEnAzimut(359.9), 66.9 + (-5 - 66.9) * 0.8, 1e-9);
    EXPECT_EQ(HorizonteEnAzimut(-90), HorizonteEnAzimut(270));
    EXPECT_EQ(HorizonteEnAzimut(360), -5.0);
    EXPECT_EQ(HorizonteEnAzimut(1080 + 45), HorizonteEnAzimut(45));
    EXPECT_NEAR(HorizonteEnAzimut(-1e-20), -5.0, 1e-12) << "a tiny negative azimuth is north";
    EXPECT_EQ(HorizonteEnAzimut(std::numeric_limits<double>::quiet_NaN()), 0.0);
    double bajo, alto;
    LimitesHorizonte(bajo, alto);
    EXPECT_EQ(bajo, -5.0);
    EXPECT_NEAR(alto, 66.9, 1e-12);
    literal::PonerHorizonte(altitudes);
    for (double az = -720; az < 1440; az += 0.0713)
        ASSERT_NEAR(HorizonteEnAzimut(az), literal::HorizonteEnAzimut(az), 1e-9) << az;
}

TEST_F(Perfil, ValidoSoloEnSuSitio)
{
    EstablecerPerfil(altitudes, 40, -3);
    EXPECT_TRUE(HorizonteValidoPara(40, -3));
    EXPECT_TRUE(HorizonteValidoPara(40.00009, -3.00009));
    EXPECT_FALSE(HorizonteValidoPara(40, -3.00011));
    EXPECT_FALSE(HorizonteValidoPara(39, -3));
    EstablecerPerfil(altitudes, 0, 0);
    EXPECT_TRUE(HorizonteValidoPara(0.00009, 0));
    EXPECT_FALSE(HorizonteValidoPara(0.0001, 0)) << "strictly less";
    EXPECT_FALSE(HorizonteValidoPara(0, -0.0001));
    BorrarPerfil();
    EXPECT_FALSE(HorizonteValidoPara(0, 0));
}

} // namespace
