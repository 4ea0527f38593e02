#include "lunaPintor.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr QRgb kFondo = qRgb(1, 2, 3);
constexpr QRgb kOscura = qRgb(45, 45, 60);
constexpr QRgb kLuz = qRgb(245, 240, 215);
constexpr QRgb kMarco = qRgb(64, 64, 64);

constexpr double kR = 20.0;
constexpr int kLado = 50; // centre at 25 - 0.5

// The disc alone in a picture of kLado logical pixels.
QImage Disco(double fase, double escala = 1.0)
{
    QImage imagen(QSize(kLado, kLado) * escala, QImage::Format_RGB32);
    imagen.setDevicePixelRatio(escala);
    imagen.fill(kFondo);
    QPainter p(&imagen);
    lunaPintor::DibujarLunaEn(p, kLado / 2.0 - 0.5, kLado / 2.0 - 0.5, kR, fase);
    return imagen;
}

// Pixels of a row that are fully lit, from left to right inclusive; first above last if there is none.
struct Tramo
{
    int primero = 0, ultimo = -1;
    int Ancho() const { return ultimo - primero + 1; }
};

Tramo Iluminado(const QImage& imagen, int fila)
{
    Tramo t{imagen.width(), -1};
    for (int x = 0; x < imagen.width(); ++x)
        if (imagen.pixel(x, fila) == kLuz) {
            t.primero = std::min(t.primero, x);
            t.ultimo = std::max(t.ultimo, x);
        }
    return t;
}

int PixelesIluminados(const QImage& imagen)
{
    int n = 0;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            n += imagen.pixel(x, y) == kLuz;
    return n;
}

// Half the width of the disc on a row, by the circle.
double Semiancho(int fila)
{
    const double dy = fila - (kLado / 2.0 - 0.5);
    return std::sqrt(std::max(kR * kR - dy * dy, 0.0));
}

} // namespace

TEST(lunaPintor, LaLunaLlenaIluminaCadaFila)
{
    const QImage imagen = Disco(0.5);
    for (int fila = 5; fila < 45; ++fila) {
        const Tramo t = Iluminado(imagen, fila);
        const double s = Semiancho(fila);
        EXPECT_NEAR(t.primero, 25.0 - s, 1.0) << fila;
        EXPECT_NEAR(t.ultimo + 1, 25.0 + s, 1.0) << fila;
        EXPECT_GE(t.Ancho(), 2.0 * s - 2.0) << "no gap in row " << fila;
    }
    EXPECT_EQ(Iluminado(imagen, 4).Ancho(), Iluminado(imagen, 45).Ancho()) << "above and below alike";
    EXPECT_EQ(imagen.pixel(2, 2), kFondo);
}

TEST(lunaPintor, LaLunaNuevaEsUnDiscoOscuroConContorno)
{
    const QImage imagen = Disco(0.0);
    EXPECT_EQ(PixelesIluminados(imagen), 0);
    EXPECT_EQ(imagen.pixel(25, 25), kOscura);
    EXPECT_EQ(imagen.pixel(25, 8), kOscura);
    const QRgb borde = imagen.pixel(5, 25); // the outline lies on the radius: x = 5
    EXPECT_GT(qRed(borde), qRed(kOscura)) << "lighter than the disc";
    EXPECT_GT(qRed(borde), qRed(kFondo));
}

TEST(lunaPintor, ElCuartoCrecienteIluminaLaMitadDerecha)
{
    const QImage imagen = Disco(0.25);
    for (int fila = 6; fila < 44; ++fila) {
        const Tramo t = Iluminado(imagen, fila);
        EXPECT_EQ(t.primero, 25) << fila;
        EXPECT_NEAR(t.ultimo + 1, 25.0 + Semiancho(fila), 1.0) << fila;
        EXPECT_EQ(imagen.pixel(24, fila), kOscura) << fila;
    }
}

TEST(lunaPintor, ElCuartoMenguanteEsSuEspejo)
{
    const QImage creciente = Disco(0.25), menguante = Disco(0.75);
    for (int fila = 6; fila < 44; ++fila)
        for (int x = 0; x < kLado; ++x)
            ASSERT_EQ(menguante.pixel(x, fila) == kLuz, creciente.pixel(kLado - 1 - x, fila) == kLuz)
                << x << ' ' << fila;
}

TEST(lunaPintor, CasiNuevaNoSeDibujaLoQueNoLlegaAlPixel)
{
    EXPECT_EQ(PixelesIluminados(Disco(0.999)), 0);
    // 0.04 of the radius wide in the middle: 0.8 pixels, and under 0.6 where s is below 15.
    const QImage fina = Disco(0.955);
    const QRgb medio = fina.pixel(4, 25), medio2 = fina.pixel(5, 25);
    EXPECT_TRUE(qRed(medio) > 150 || qRed(medio2) > 150) << "a crescent at the left";
    const QImage oscura = Disco(0.0);
    EXPECT_EQ(fina.pixel(44, 25), oscura.pixel(44, 25)) << "nothing at the right";
    for (int fila : {5, 7, 43, 44})
        for (int x = 0; x < kLado; ++x)
            ASSERT_EQ(fina.pixel(x, fila), oscura.pixel(x, fila))
                << "thin rows stay dark: " << x << ' ' << fila;
}

TEST(lunaPintor, SoloCuentaLaParteFraccionaria)
{
    EXPECT_EQ(Disco(1.25), Disco(0.25));
    EXPECT_EQ(Disco(7.5), Disco(0.5));
    EXPECT_EQ(Disco(-0.75), Disco(0.25));
}

// The lit area of a phase f is (1 - cos 2 pi f) / 2 of the disc.
TEST(lunaPintor, ElAreaIluminadaSigueLaFase)
{
    constexpr double kDisco = M_PI * kR * kR;
    constexpr double kBorde = 2.5 * kR * 2.0; // pixels of the rim that are lit in part only
    for (int i = 3; i <= 97; ++i) {
        const double f = i / 100.0;
        const double esperada = (1.0 - std::cos(2.0 * M_PI * f)) / 2.0 * kDisco;
        EXPECT_NEAR(PixelesIluminados(Disco(f)), esperada, kBorde) << f;
    }
}

TEST(lunaPintor, ADobleEscalaLasFilasSonDelDispositivo)
{
    const QImage imagen = Disco(0.25, 2.0);
    ASSERT_EQ(imagen.width(), 100);
    int distintas = 0;
    for (int fila = 12; fila < 88; ++fila) {
        const Tramo t = Iluminado(imagen, fila);
        EXPECT_EQ(t.primero, 50) << fila;
        distintas += fila % 2 == 0 && Iluminado(imagen, fila).ultimo != Iluminado(imagen, fila + 1).ultimo;
    }
    EXPECT_GT(distintas, 8) << "rows of one logical pixel differ, so the limb is sharp";
}

TEST(lunaPintor, ElPanelCentraElDiscoEnSuMarco)
{
    QImage imagen(64, 40, QImage::Format_RGB32);
    imagen.fill(kFondo);
    {
        QPainter p(&imagen);
        lunaPintor::PintarLunaPanel(p, 64, 40, 0.5);
    }
    for (int x = 0; x < 64; ++x) {
        EXPECT_EQ(imagen.pixel(x, 0), kMarco);
        EXPECT_EQ(imagen.pixel(x, 39), kMarco);
    }
    for (int y = 0; y < 40; ++y) {
        EXPECT_EQ(imagen.pixel(0, y), kMarco);
        EXPECT_EQ(imagen.pixel(63, y), kMarco);
    }
    const Tramo t = Iluminado(imagen, 20);
    EXPECT_EQ(t.primero, 15) << "radius 18 round 32; the outermost pixels are lit in part";
    EXPECT_EQ(t.ultimo, 48);
    EXPECT_NE(imagen.pixel(3, 3), kFondo) << "cleared";
}

TEST(lunaPintor, UnCuadroDiminutoQuedaComoEstaba)
{
    for (const QSize& lado : {QSize(4, 64), QSize(64, 4), QSize(4, 4), QSize(1, 1)}) {
        QImage imagen(lado, QImage::Format_RGB32);
        imagen.fill(kFondo);
        {
            QPainter p(&imagen);
            lunaPintor::PintarLunaPanel(p, lado.width(), lado.height(), 0.5);
        }
        QImage antes(lado, QImage::Format_RGB32);
        antes.fill(kFondo);
        EXPECT_EQ(imagen, antes) << lado.width() << ' ' << lado.height();
    }
}

TEST(lunaPintor, ElPintorVuelveComoEstaba)
{
    QImage imagen(64, 64, QImage::Format_RGB32);
    imagen.fill(kFondo);
    QPainter p(&imagen);
    p.setPen(QPen(Qt::red, 3.0));
    p.setBrush(Qt::green);
    lunaPintor::PintarLunaPanel(p, 64, 64, 0.3);
    lunaPintor::DibujarLunaEn(p, 20, 20, 10, 0.0);
    lunaPintor::DibujarLunaEn(p, 20, 20, -1, 0.5);
    lunaPintor::DibujarLunaEn(p, 20, 20, 10, std::nan(""));
    EXPECT_EQ(p.pen(), QPen(Qt::red, 3.0));
    EXPECT_EQ(p.brush(), QBrush(Qt::green));
    EXPECT_FALSE(p.testRenderHint(QPainter::Antialiasing));
}
