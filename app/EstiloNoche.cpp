#include "EstiloNoche.h"

#include "paleta.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QStyleOption>

namespace {

constexpr int kLadoCasilla = 15; // logical pixels
constexpr int kRadio = 3;
constexpr int kCarril = 4; // thickness of a slider's groove
constexpr int kPulgarAncho = 10;
constexpr int kPulgarAlto = 18;

struct Guardado
{
    explicit Guardado(QPainter* q) : p(q)
    {
        p->save();
        p->setRenderHint(QPainter::Antialiasing);
    }
    ~Guardado() { p->restore(); }
    Guardado(const Guardado&) = delete;
    Guardado& operator=(const Guardado&) = delete;
    QPainter* p;
};

// The edge of a control: accent with the keyboard's focus, brighter under the pointer.
QColor Borde(const QStyleOption& o)
{
    if (!(o.state & QStyle::State_Enabled)) {
        return paleta::kBoton;
    }
    if (o.state & QStyle::State_HasFocus) {
        return paleta::kAcento;
    }
    return o.state & QStyle::State_MouseOver ? paleta::kTextoInerte : paleta::kBorde;
}

// Middle of the pixels along the edge, where a one-pixel pen is sharp.
QRectF Orilla(const QRect& r)
{
    return QRectF(r).adjusted(0.5, 0.5, -0.5, -0.5);
}

// A tick in r, for boxes and menus.
void PintarMarca(QPainter* p, const QRectF& r, const QColor& color)
{
    const auto punto = [&](double x, double y) {
        return QPointF(r.left() + x * r.width(), r.top() + y * r.height());
    };
    p->setPen(QPen(color, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p->setBrush(Qt::NoBrush);
    const QPointF trazo[] = {punto(0.25, 0.52), punto(0.43, 0.70), punto(0.76, 0.32)};
    p->drawPolyline(trazo, 3);
}

void PintarCasilla(QPainter* p, const QStyleOption& o)
{
    const Guardado guardado(p);
    const bool viva = o.state & QStyle::State_Enabled;
    const bool marcada = o.state & (QStyle::State_On | QStyle::State_NoChange);
    p->setPen(QPen(marcada && viva && !(o.state & QStyle::State_HasFocus) ? paleta::kAcento : Borde(o), 1.0));
    p->setBrush(!marcada ? paleta::kCampo : viva ? paleta::kAcentoOscuro : paleta::kBoton);
    p->drawRoundedRect(Orilla(o.rect), kRadio, kRadio);
    const QColor color = viva ? paleta::kTexto : paleta::kTextoInerte;
    if (o.state & QStyle::State_NoChange) {
        const QPointF c = QRectF(o.rect).center();
        p->setPen(QPen(color, 1.8, Qt::SolidLine, Qt::RoundCap));
        p->drawLine(c - QPointF(3.5, 0), c + QPointF(3.5, 0));
    } else if (o.state & QStyle::State_On) {
        PintarMarca(p, o.rect, color);
    }
}

void PintarOpcion(QPainter* p, const QStyleOption& o)
{
    const Guardado guardado(p);
    const bool viva = o.state & QStyle::State_Enabled;
    p->setPen(QPen(Borde(o), 1.0));
    p->setBrush(paleta::kCampo);
    p->drawEllipse(Orilla(o.rect));
    if (o.state & QStyle::State_On) {
        p->setPen(Qt::NoPen);
        p->setBrush(viva ? paleta::kAcento : paleta::kTextoInerte);
        const double m = o.rect.width() * 0.28;
        p->drawEllipse(QRectF(o.rect).adjusted(m, m, -m, -m));
    }
}

void PintarPunta(QPainter* p, const QRectF& r, const QColor& color)
{
    p->setPen(QPen(color, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p->setBrush(Qt::NoBrush);
    const QPointF c = r.center();
    const QPointF trazo[] = {c + QPointF(-3.5, -1.75), c + QPointF(0.0, 1.75), c + QPointF(3.5, -1.75)};
    p->drawPolyline(trazo, 3);
}

void PintarDesplegable(QPainter* p, const QStyleOptionComboBox& o, const QRect& flecha)
{
    const Guardado guardado(p);
    const bool viva = o.state & QStyle::State_Enabled;
    const bool encima = viva && (o.state & QStyle::State_MouseOver);
    p->setPen(QPen(Borde(o), 1.0));
    p->setBrush(!viva ? paleta::kVentana : encima ? paleta::kBotonEncima : paleta::kBoton);
    p->drawRoundedRect(Orilla(o.rect), kRadio, kRadio);
    PintarPunta(p, flecha, viva ? paleta::kTextoTenue : paleta::kTextoInerte);
}

void PintarBarra(QPainter* p, const QStyleOptionSlider& o, const QRect& carril, const QRect& pulgar)
{
    const Guardado guardado(p);
    const bool viva = o.state & QStyle::State_Enabled;
    const bool tumbada = o.orientation == Qt::Horizontal;
    const QPoint c = carril.center();
    const QRectF fino = tumbada ? QRectF(carril.left(), c.y() - kCarril / 2 + 1, carril.width(), kCarril)
                                : QRectF(c.x() - kCarril / 2 + 1, carril.top(), kCarril, carril.height());
    p->setPen(Qt::NoPen);
    p->setBrush(paleta::kBorde);
    p->drawRoundedRect(fino, kCarril / 2.0, kCarril / 2.0);
    if (viva) {
        QRectF andado = fino;
        const QPointF mitad = QRectF(pulgar).center();
        if (tumbada) {
            if (o.upsideDown) {
                andado.setLeft(mitad.x());
            } else {
                andado.setRight(mitad.x());
            }
        } else if (o.upsideDown) {
            andado.setTop(mitad.y());
        } else {
            andado.setBottom(mitad.y());
        }
        p->setBrush(paleta::kAcentoOscuro);
        p->drawRoundedRect(andado, kCarril / 2.0, kCarril / 2.0);
    }
    const bool cogida = o.state & QStyle::State_Sunken;
    const bool foco = o.state & QStyle::State_HasFocus;
    p->setPen(QPen(foco ? paleta::kAcento : paleta::kVentana, foco ? 2.0 : 1.0));
    p->setBrush(!viva ? paleta::kTextoInerte : cogida ? paleta::kTexto : QColor(paleta::kTextoTenue));
    const double m = foco ? 1.0 : 0.5;
    p->drawRoundedRect(QRectF(pulgar).adjusted(m, m, -m, -m), kRadio + 1, kRadio + 1);
}

// The sign of a message box: a letter in a ring.
QIcon IconoMensaje(QChar letra, const QColor& color)
{
    QIcon icono;
    for (const int lado : {16, 24, 32, 48, 64, 96}) {
        QPixmap imagen(lado, lado);
        imagen.fill(Qt::transparent);
        QPainter p(&imagen);
        p.setRenderHint(QPainter::Antialiasing);
        const double grueso = lado / 16.0;
        p.setPen(QPen(color, grueso));
        p.drawEllipse(QRectF(0, 0, lado, lado).adjusted(grueso, grueso, -grueso, -grueso));
        QFont f;
        f.setPixelSize(lado * 5 / 8);
        f.setBold(true);
        p.setFont(f);
        p.drawText(QRect(0, 0, lado, lado), Qt::AlignCenter, letra);
        p.end();
        icono.addPixmap(imagen);
    }
    return icono;
}

} // namespace

EstiloNoche::EstiloNoche() : QProxyStyle(QStringLiteral("Fusion"))
{
    setObjectName(QStringLiteral("estiloNoche"));
}

void EstiloNoche::drawPrimitive(PrimitiveElement elemento, const QStyleOption* opcion, QPainter* p,
                                const QWidget* w) const
{
    switch (elemento) {
    case PE_IndicatorCheckBox:
        PintarCasilla(p, *opcion);
        return;
    case PE_IndicatorRadioButton:
        PintarOpcion(p, *opcion);
        return;
    case PE_IndicatorMenuCheckMark: {
        const Guardado guardado(p);
        PintarMarca(p, opcion->rect, paleta::kAcento);
        return;
    }
    case PE_FrameFocusRect: { // round the words of a check box; the others show focus by their edge
        const Guardado guardado(p);
        p->setPen(QPen(paleta::kAcento, 1.0));
        p->setBrush(Qt::NoBrush);
        p->drawRoundedRect(Orilla(opcion->rect), 2, 2);
        return;
    }
    default:
        QProxyStyle::drawPrimitive(elemento, opcion, p, w);
    }
}

void EstiloNoche::drawComplexControl(ComplexControl control, const QStyleOptionComplex* opcion, QPainter* p,
                                     const QWidget* w) const
{
    if (control == CC_ComboBox) {
        if (const auto* o = qstyleoption_cast<const QStyleOptionComboBox*>(opcion); o && !o->editable) {
            PintarDesplegable(p, *o, subControlRect(CC_ComboBox, o, SC_ComboBoxArrow, w));
            return;
        }
    }
    if (control == CC_Slider) {
        if (const auto* o = qstyleoption_cast<const QStyleOptionSlider*>(opcion)) {
            PintarBarra(p, *o, subControlRect(CC_Slider, o, SC_SliderGroove, w),
                        subControlRect(CC_Slider, o, SC_SliderHandle, w));
            return;
        }
    }
    QProxyStyle::drawComplexControl(control, opcion, p, w);
}

int EstiloNoche::pixelMetric(PixelMetric medida, const QStyleOption* opcion, const QWidget* w) const
{
    switch (medida) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return kLadoCasilla;
    case PM_SliderLength:
        return kPulgarAncho;
    case PM_SliderThickness:
    case PM_SliderControlThickness:
        return kPulgarAlto;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return 7;
    default:
        return QProxyStyle::pixelMetric(medida, opcion, w);
    }
}

QIcon EstiloNoche::standardIcon(StandardPixmap cual, const QStyleOption* opcion, const QWidget* w) const
{
    switch (cual) {
    case SP_MessageBoxQuestion:
        return IconoMensaje(QLatin1Char('?'), paleta::kAcento);
    case SP_MessageBoxInformation:
        return IconoMensaje(QLatin1Char('i'), paleta::kTextoTenue);
    case SP_MessageBoxWarning:
    case SP_MessageBoxCritical:
        return IconoMensaje(QLatin1Char('!'), paleta::kAcento);
    default:
        return QProxyStyle::standardIcon(cual, opcion, w);
    }
}

int EstiloNoche::styleHint(StyleHint pista, const QStyleOption* opcion, const QWidget* w,
                           QStyleHintReturn* retorno) const
{
    switch (pista) {
    case SH_ComboBox_Popup: // a plain list under the box, not a menu over it
        return 0;
    case SH_EtchDisabledText:
        return 0;
    case SH_Slider_AbsoluteSetButtons: // a click on the groove steps; holding on goes on
        return Qt::MiddleButton;
    default:
        return QProxyStyle::styleHint(pista, opcion, w, retorno);
    }
}
