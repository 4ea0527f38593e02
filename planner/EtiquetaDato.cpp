#include "EtiquetaDato.h"

#include "paleta.h"

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int kSeparacion = 6;   // between two pieces, logical pixels
constexpr int kAireVertical = 4; // above and below the text together
const char* const kHoraModelo = "00:00";

} // namespace

EtiquetaDato::EtiquetaDato(const char* nombre, QWidget* padre) : QWidget(padre)
{
    setObjectName(QLatin1String(nombre));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QStringList EtiquetaDato::Piezas(const QString& linea)
{
    return linea.split(QStringLiteral("  "), Qt::SkipEmptyParts);
}

void EtiquetaDato::setText(const QString& nuevo)
{
    if (nuevo == texto)
        return;
    texto = nuevo;
    piezas = Piezas(texto);
    setAccessibleName(texto.simplified());
    update();
}

QList<int> EtiquetaDato::FinesDesdeLaDerecha(const QStringList& partes, const QFontMetrics& medida) const
{
    QList<int> fines;
    int derecha = 0;
    for (qsizetype i = partes.size() - 1; i >= 1; --i) {
        fines.append(derecha);
        int ancho = medida.horizontalAdvance(partes[i]);
        const bool ultimaDeDos = i == partes.size() - 1 && partes.size() >= 4;
        if (ultimaDeDos) {
            ancho = std::max(ancho, medida.horizontalAdvance(QLatin1String(kHoraModelo)));
            if (partes.size() == 4 && !marca.isEmpty())
                ancho += kSeparacion + medida.horizontalAdvance(marca);
        }
        derecha += ancho + kSeparacion;
    }
    fines.append(derecha);
    return fines;
}

int EtiquetaDato::AnchoDe(const QString& cualquiera) const
{
    const QFontMetrics medida(font());
    const QStringList partes = Piezas(cualquiera);
    return partes.isEmpty()
               ? 0
               : medida.horizontalAdvance(partes.first()) + FinesDesdeLaDerecha(partes, medida).last();
}

void EtiquetaDato::PonerModelo(const QString& ancho)
{
    modelo = ancho;
    updateGeometry();
}

void EtiquetaDato::PonerMarca(const QString& nueva)
{
    marca = nueva;
    updateGeometry();
    update();
}

QSize EtiquetaDato::sizeHint() const
{
    return {AnchoDe(modelo), QFontMetrics(font()).height() + kAireVertical};
}

void EtiquetaDato::paintEvent(QPaintEvent*)
{
    if (piezas.isEmpty())
        return;
    QPainter p(this);
    p.setFont(font());
    const QRect r = rect();
    const auto fines = FinesDesdeLaDerecha(piezas, p.fontMetrics());
    const bool sola = piezas.size() == 1;
    p.setPen(isEnabled() ? (sola ? paleta::kTexto : paleta::kTextoTenue) : paleta::kTextoInerte);
    p.drawText(r, Qt::AlignLeft | Qt::AlignVCenter, piezas.first());
    for (qsizetype i = piezas.size() - 1, k = 0; i >= 1; --i, ++k) {
        const QString& pieza = piezas[i];
        const bool signo = pieza.endsWith(QLatin1Char(':')) || pieza == QLatin1String("/");
        p.setPen(!isEnabled() ? paleta::kTextoInerte : signo ? paleta::kTextoTenue : paleta::kTexto);
        p.drawText(r.adjusted(0, 0, -fines[k], 0), Qt::AlignRight | Qt::AlignVCenter, pieza);
    }
}
