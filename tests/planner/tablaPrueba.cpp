#include "tablaPrueba.h"

#include "modI18n.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tablaPrueba {

namespace {

constexpr const char* kTabla = "main.dyn.hora_local=hora %1\n"
                               "main.dyn.sun.rise=s.rise %1\n"
                               "main.dyn.sun.transit=s.transit %1\n"
                               "main.dyn.sun.set=s.set %1\n"
                               "main.dyn.sun.az=s.az %1\n"
                               "main.dyn.sun.alt=s.alt %1\n"
                               "main.dyn.hora_dorada=gold %1 / %2\n"
                               "main.dyn.hora_azul=blue %1 / %2\n"
                               "main.dyn.crep_civil=civil %1 / %2\n"
                               "main.dyn.crep_naut=naut %1 / %2\n"
                               "main.dyn.crep_astro=astro %1 / %2\n"
                               "main.dyn.moon.rise=m.rise %1\n"
                               "main.dyn.moon.transit=m.transit %1\n"
                               "main.dyn.moon.set=m.set %1\n"
                               "main.dyn.moon.az=m.az %1\n"
                               "main.dyn.moon.alt=m.alt %1\n"
                               "main.dyn.moon.phase=phase %1 (%2)\n"
                               "main.dyn.moon.phase_val=%1pc\n"
                               "main.dyn.moon.illum=illum %1\n"
                               "main.dyn.moon.dist=dist %1\n"
                               "main.dyn.deg=%1d\n"
                               "main.dyn.percent=%1pc\n"
                               "main.dyn.km=%1km\n"
                               "main.dyn.distancia=distancia %1\n"
                               "main.dyn.bearing=rumbo %1\n"
                               "main.dyn.dashes=nada\n"
                               "main.dyn.dashes_coord=sin lugar\n"
                               "main.moon.phase.nueva=nueva\n"
                               "main.moon.phase.creciente_joven=creciente joven\n"
                               "main.moon.phase.cuarto_creciente=cuarto creciente\n"
                               "main.moon.phase.gibosa_creciente=gibosa creciente\n"
                               "main.moon.phase.llena=llena\n"
                               "main.moon.phase.gibosa_menguante=gibosa menguante\n"
                               "main.moon.phase.cuarto_menguante=cuarto menguante\n"
                               "main.moon.phase.menguante_vieja=menguante vieja\n"
                               "descarga.aviso_0=bajando\n"
                               "descarga.aviso_1=una\n"
                               "descarga.aviso_n=quedan %1\n";

} // namespace

void Cargar()
{
    static bool hecho = false;
    if (hecho)
        return;
    hecho = true;
    static QTemporaryDir carpeta;
    ASSERT_TRUE(QDir(carpeta.path()).mkdir(QStringLiteral("recursos")));
    QFile tabla(carpeta.filePath(QStringLiteral("recursos/lang_es.ini")));
    ASSERT_TRUE(tabla.open(QIODevice::WriteOnly));
    tabla.write(kTabla);
    tabla.close();
    const QByteArray antes = qgetenv("QUINTALUZ_APPPATH");
    qputenv("QUINTALUZ_APPPATH", carpeta.path().toUtf8());
    EXPECT_TRUE(modI18n::CargarIdioma(u"es"));
    if (antes.isEmpty())
        qunsetenv("QUINTALUZ_APPPATH");
    else
        qputenv("QUINTALUZ_APPPATH", antes);
}

} // namespace tablaPrueba
