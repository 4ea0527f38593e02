#include "modRutas.h"

#include <QCoreApplication>
#include <QDir>

namespace modRutas {

QString AppPath()
{
    const QString entorno = qEnvironmentVariable("QUINTALUZ_APPPATH");
    if (!entorno.isEmpty()) {
        return QDir::cleanPath(QDir(entorno).absolutePath());
    }
    // Without an application object (a test of a pure module) the working directory stands in.
    return QCoreApplication::instance() != nullptr ? QCoreApplication::applicationDirPath()
                                                   : QDir::currentPath();
}

QString RutaDatos(QStringView relativa)
{
    QString ruta = relativa.toString();
    ruta.replace(QLatin1Char('\\'), QLatin1Char('/'));
    while (ruta.startsWith(QLatin1Char('/'))) {
        ruta.remove(0, 1);
    }
    const QString base = AppPath();
    if (ruta.isEmpty()) {
        return base;
    }
    return base.endsWith(QLatin1Char('/')) ? base + ruta : base + QLatin1Char('/') + ruta;
}

} // namespace modRutas
