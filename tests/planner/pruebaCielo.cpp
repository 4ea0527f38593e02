#include "cielo.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

namespace {

struct CasoColor
{
    const char* frase;
    double alt;
    QRgb color;
};

int Distancia(QRgb a, QRgb b)
{
    return std::max(
        {std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

} // namespace

TEST(cielo, MezclaSujetaSusExtremos)
{
    const QRgb a = qRgb(0, 100, 255), b = qRgb(100, 0, 255);
    EXPECT_EQ(cielo::Mezcla(a, b, 0.0), a);
    EXPECT_EQ(cielo::Mezcla(a, b, 1.0), b);
    EXPECT_EQ(cielo::Mezcla(a, b, -3.0), a);
    EXPECT_EQ(cielo::Mezcla(a, b, 7.0), b);
    EXPECT_EQ(cielo::Mezcla(a, b, 0.25), qRgb(25, 75, 255));
    EXPECT_EQ(cielo::Mezcla(qRgb(0, 0, 0), qRgb(1, 3, 5), 0.5), qRgb(0, 2, 2)) << "halves to even";
}

// The stops themselves and the middles between them, worked out by hand.
constexpr CasoColor kCielo[] = {
    {"deep night", -40.0, qRgb(8, 12, 28)},
    {"just below the twilight", -18.0001, qRgb(8, 12, 28)},
    {"-18 is still night's colour", -18.0, qRgb(8, 12, 28)},
    {"middle of the astronomical twilight", -15.0, qRgb(14, 22, 50)},
    {"-12", -12.0, qRgb(20, 32, 72)},
    {"-6", -6.0, qRgb(45, 70, 120)},
    {"middle of the civil twilight", -3.0, qRgb(70, 92, 142)},
    {"the horizon", 0.0, qRgb(95, 115, 165)},
    // t 0.5: Civil to Dorado by 0.35 is (139, 132, 146); then by 0.4 to Dorado
    {"3 degrees, the warmest mix", 3.0, qRgb(171, 145, 132)},
    {"6 is plain gold", 6.0, qRgb(220, 165, 110)},
    {"13, halfway to day", 13.0, qRgb(185, 175, 168)},
    {"20 and above", 20.0, qRgb(150, 185, 225)},
    {"noon", 73.0, qRgb(150, 185, 225)},
};

TEST(cielo, ColorCielo)
{
    for (const CasoColor& c : kCielo) {
        SCOPED_TRACE(c.frase);
        const QRgb color = cielo::ColorCielo(c.alt);
        EXPECT_EQ(color, c.color) << qRed(color) << ' ' << qGreen(color) << ' ' << qBlue(color);
    }
}

TEST(cielo, SoloA6GradosHayEscalon)
{
    for (int i = -2500; i < 2500; ++i) {
        const double alt = i * 0.01;
        const int salto = Distancia(cielo::ColorCielo(alt), cielo::ColorCielo(alt + 0.01));
        if (i != 599) {
            ASSERT_LE(salto, 2) << alt;
        } else {
            EXPECT_GT(salto, 20) << "the gold steps in";
        }
    }
}

// The bands' formulas at their ends and middles, worked out by hand.
constexpr CasoColor kScrub[] = {
    {"deep night", -30.0, qRgb(13, 8, 26)},
    {"-18", -18.0, qRgb(13, 8, 26)},
    {"-15", -15.0, qRgb(26, 12, 41)}, // 26.5 and 11.5 to even
    {"-12", -12.0, qRgb(40, 15, 30)},
    {"-9", -9.0, qRgb(60, 22, 50)}, // 22.5 to even
    {"just below the seam", -6.0 - 1e-9, qRgb(80, 30, 70)},
    {"the seam itself", -6.0, qRgb(80, 30, 10)},
    {"-3", -3.0, qRgb(150, 65, 15)},
    {"0", 0.0, qRgb(220, 100, 20)},
    {"3", 3.0, qRgb(160, 130, 125)},
    {"6", 6.0, qRgb(100, 160, 230)},
    {"noon", 60.0, qRgb(100, 160, 230)},
};

TEST(cielo, ColorScrub)
{
    for (const CasoColor& c : kScrub) {
        SCOPED_TRACE(c.frase);
        const QRgb color = cielo::ColorScrub(c.alt);
        EXPECT_EQ(color, c.color) << qRed(color) << ' ' << qGreen(color) << ' ' << qBlue(color);
    }
}

TEST(cielo, EnLaCosturaSoloSaltaElAzul)
{
    const QRgb abajo = cielo::ColorScrub(-6.0 - 1e-9), arriba = cielo::ColorScrub(-6.0);
    EXPECT_EQ(qRed(abajo), qRed(arriba));
    EXPECT_EQ(qGreen(abajo), qGreen(arriba));
    EXPECT_EQ(qBlue(abajo), 70);
    EXPECT_EQ(qBlue(arriba), 10);
}
