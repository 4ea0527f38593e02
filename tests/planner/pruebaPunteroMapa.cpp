// What the pointer on the map means, and where the parts of the window stand.
#include "disposicion.h"
#include "punteroMapa.h"

#include <gtest/gtest.h>

using disposicion::CalcularDisposicion;
using punteroMapa::Accion;
using punteroMapa::PunteroMapa;

TEST(punteroMapa, AQuietPressAndReleaseIsAPendingClick)
{
    PunteroMapa p;
    EXPECT_EQ(p.Pulsar({100, 100}, false, {}, {}).accion, Accion::Nada);
    EXPECT_EQ(p.Mover({102, 98}).accion, Accion::Nada) << "2 pixels are a shaky click";
    const auto r = p.Soltar({102, 98});
    EXPECT_EQ(r.accion, Accion::ClicPendiente);
    EXPECT_EQ(r.donde, QPoint(102, 98));
    EXPECT_FALSE(p.Activo());
}

TEST(punteroMapa, ThreePixelsPanAndPinNothing)
{
    PunteroMapa p;
    p.Pulsar({100, 100}, false, {}, {});
    const auto r = p.Mover({103, 100});
    EXPECT_EQ(r.accion, Accion::Desplazar);
    EXPECT_EQ(r.delta, QPoint(3, 0));
    EXPECT_EQ(p.Mover({103, 101}).delta, QPoint(0, 1)) << "past the threshold every pixel counts";
    EXPECT_EQ(p.Soltar({103, 101}).accion, Accion::FinDesplazar);
    EXPECT_EQ(p.Mover({200, 200}).accion, Accion::Nada);
    EXPECT_EQ(p.Soltar({200, 200}).accion, Accion::Nada) << "the release of a double click's second press";
}

TEST(punteroMapa, TheTargetWinsOverTheObserver)
{
    PunteroMapa p;
    p.Pulsar({100, 100}, false, QPoint(100, 104), QPoint(104, 100));
    EXPECT_EQ(p.Mover({110, 110}).accion, Accion::MoverObjetivo);
    EXPECT_EQ(p.Soltar({110, 110}).accion, Accion::SoltarObjetivo);
    p.Pulsar({100, 100}, true, QPoint(100, 104), {});
    EXPECT_EQ(p.Mover({110, 110}).accion, Accion::MoverObservador) << "a mark is grabbed, shift or not";
    EXPECT_EQ(p.Soltar({110, 110}).accion, Accion::SoltarObservador);
}

TEST(punteroMapa, ShiftPinsAtOnce)
{
    PunteroMapa p;
    EXPECT_EQ(p.Pulsar({5, 6}, true, {}, {}).accion, Accion::FijarObservador);
    EXPECT_EQ(p.Soltar({5, 6}).accion, Accion::Nada);
}

TEST(punteroMapa, AMarkIsGrabbedWithinTwelvePixels)
{
    using punteroMapa::PuntoSobreMarca;
    EXPECT_TRUE(PuntoSobreMarca({0, 0}, {12, 0}));
    EXPECT_FALSE(PuntoSobreMarca({0, 0}, {13, 0}));
    EXPECT_TRUE(PuntoSobreMarca({0, 0}, {8, -8}));
    EXPECT_FALSE(PuntoSobreMarca({0, 0}, {9, 8})) << "81 + 64 is above 144";
    EXPECT_FALSE(PuntoSobreMarca({0, 0}, {46341, 46341})) << "far marks do not overflow";
}

TEST(punteroMapa, AClickWaitsAQuarterOfADoubleClickAnd20Ms)
{
    EXPECT_EQ(punteroMapa::EsperaClic(500), 145);
    EXPECT_EQ(punteroMapa::EsperaClic(401), 120);
}

TEST(disposicion, TheMapTakesWhatFramesTimelineAndStripLeave)
{
    const auto d = CalcularDisposicion({1280, 776}, 240, 300);
    ASSERT_TRUE(d);
    EXPECT_EQ(d->mapa, QRect(240, 0, 740, 550));
    EXPECT_EQ(d->timeline, QRect(240, 550, 740, 206));
    EXPECT_EQ(d->scrub, QRect(240, 756, 740, 20));
    EXPECT_EQ(d->frame1, QRect(0, 0, 240, 776));
    EXPECT_EQ(d->frame2, QRect(980, 0, 300, 776));
}

TEST(disposicion, SmallAreasMoveNothing)
{
    EXPECT_FALSE(CalcularDisposicion({533, 700}, 100, 100)) << "under 8000 twips wide";
    EXPECT_TRUE(CalcularDisposicion({534, 700}, 100, 100));
    EXPECT_FALSE(CalcularDisposicion({1000, 199}, 100, 100)) << "under 3000 twips high";
    EXPECT_FALSE(CalcularDisposicion({1000, 238}, 100, 100)) << "a map under 200 twips high";
    EXPECT_TRUE(CalcularDisposicion({1000, 239}, 100, 100));
    EXPECT_FALSE(CalcularDisposicion({600, 700}, 300, 290)) << "a map under 200 twips wide";
}
