#include "modCodificacion.h"

#include <algorithm>
#include <array>

namespace modCodificacion {

namespace {

// Bytes 0x80 to 0x9F of Windows-1252; the rest is Latin-1. Source: the Encoding Standard's index.
constexpr std::array<char16_t, 32> kAltos = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                             0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                             0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                             0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

} // namespace

bool EsUtf8(QByteArrayView bytes)
{
    return bytes.isValidUtf8();
}

QString Decodificar(QByteArrayView bytes)
{
    if (bytes.startsWith("\xEF\xBB\xBF")) {
        bytes = bytes.sliced(3);
    }
    return EsUtf8(bytes) ? QString::fromUtf8(bytes) : DeWindows1252(bytes);
}

QString DeWindows1252(QByteArrayView bytes)
{
    QString texto(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), texto.begin(), [](char c) {
        const auto b = static_cast<unsigned char>(c);
        return QChar(b >= 0x80 && b < 0xA0 ? kAltos[b - 0x80U] : char16_t{b});
    });
    return texto;
}

bool AWindows1252(QStringView texto, QByteArray& bytes)
{
    QByteArray r;
    r.reserve(texto.size());
    for (const QChar c : texto) {
        const char16_t u = c.unicode();
        if (u < 0x80 || (u >= 0xA0 && u <= 0xFF)) {
            r.append(static_cast<char>(u));
            continue;
        }
        const auto it = std::find(kAltos.begin(), kAltos.end(), u);
        if (it == kAltos.end()) {
            return false;
        }
        r.append(static_cast<char>(0x80 + (it - kAltos.begin())));
    }
    bytes = r;
    return true;
}

std::vector<QStringView> Lineas(const QString& texto)
{
    std::vector<QStringView> lineas;
    const QStringView t(texto);
    qsizetype desde = 0;
    while (desde < t.size()) {
        qsizetype hasta = desde;
        while (hasta < t.size() && t[hasta] != u'\n' && t[hasta] != u'\r') {
            ++hasta;
        }
        lineas.push_back(t.mid(desde, hasta - desde));
        const bool crlf = hasta + 1 < t.size() && t[hasta] == u'\r' && t[hasta + 1] == u'\n';
        desde = hasta + (crlf ? 2 : 1);
    }
    return lineas;
}

} // namespace modCodificacion
