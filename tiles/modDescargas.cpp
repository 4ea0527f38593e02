#include "modDescargas.h"

#include "modHTTP.h"

#include <QCoreApplication>
#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace modDescargas {
namespace {

constexpr char kAgente[] = "Quintaluz/1.0 (Zarcillo desktop tile loader)";
constexpr std::size_t kEntradasIniciales = 512;
constexpr qsizetype kBytesMinimo = 101;
constexpr char kFirmaPng[] = "\x89PNG";
constexpr int kRedireccionesMaximo = 5;

struct Entrada
{
    QString url;
    QString ruta;
};

struct Ranura
{
    QPointer<QNetworkReply> peticion;
    QString ruta;
    bool activa = false;
    int ticks = 0; // polls since it was sent
};

struct Estado
{
    std::vector<Entrada> cola; // served from the back
    std::array<Ranura, kRanuras> ranuras;
    QPointer<QNetworkAccessManager> red; // child of the application: never outlives it
};

Estado& Modulo()
{
    static Estado estado;
    return estado;
}

// The system's proxy, except for servers on this machine.
class ProxySistema : public QNetworkProxyFactory
{
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& consulta) override
    {
        const QString servidor = consulta.peerHostName();
        if (servidor == QLatin1String("localhost") || QHostAddress(servidor).isLoopback())
            return {QNetworkProxy(QNetworkProxy::NoProxy)};
        return systemProxyForQuery(consulta);
    }
};

QNetworkAccessManager& Red()
{
    Estado& e = Modulo();
    if (e.red == nullptr) {
        e.red = new QNetworkAccessManager(QCoreApplication::instance());
        e.red->setProxyFactory(new ProxySistema);
        e.red->setRedirectPolicy(QNetworkRequest::NoLessSafeRedirectPolicy);
    }
    return *e.red;
}

QNetworkReply* Pedir(const QString& url)
{
    QNetworkRequest peticion{QUrl(url)};
    peticion.setHeader(QNetworkRequest::UserAgentHeader, kAgente);
    peticion.setRawHeader("Accept-Encoding", "identity");
    peticion.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    peticion.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    peticion.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    peticion.setMaximumRedirectsAllowed(kRedireccionesMaximo);
    QNetworkReply* respuesta = Red().get(peticion);
    respuesta->setReadBufferSize(kCuerpoMaximo + 1); // what is too long is seen, never held
    return respuesta;
}

bool MismaRuta(const QString& a, const QString& b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

} // namespace

void IniciarColaDescargas()
{
    Modulo().cola.reserve(kEntradasIniciales);
    VaciarColaDescargas();
}

void VaciarColaDescargas()
{
    Modulo().cola.clear();
}

void CerrarColaDescargas()
{
    VaciarColaDescargas();
    for (int i = 0; i < kRanuras; ++i)
        LiberarRanuraDescarga(i);
    delete Modulo().red;
}

void EncolarDescarga(const QString& url, const QString& ruta)
{
    Estado& e = Modulo();
    for (const Ranura& r : e.ranuras)
        if (r.activa && MismaRuta(r.ruta, ruta))
            return;
    for (const Entrada& entrada : e.cola)
        if (MismaRuta(entrada.ruta, ruta))
            return;
    e.cola.push_back({url, ruta});
}

bool HayDescargasPendientes()
{
    return ContarDescargasPendientes() > 0;
}

int ContarDescargasPendientes()
{
    const Estado& e = Modulo();
    return static_cast<int>(e.cola.size()) +
           static_cast<int>(
               std::count_if(e.ranuras.begin(), e.ranuras.end(), [](const Ranura& r) { return r.activa; }));
}

void LiberarRanuraDescarga(int i)
{
    if (i < 0 || i >= kRanuras)
        return;
    // Cleared first: ending a request calls back into whoever polls.
    const Ranura antes = std::exchange(Modulo().ranuras[static_cast<std::size_t>(i)], Ranura{});
    if (antes.peticion == nullptr)
        return;
    if (antes.peticion->isRunning())
        antes.peticion->abort();
    antes.peticion->deleteLater();
}

int SondearDescargas()
{
    Estado& e = Modulo();
    int guardadas = 0;
    for (int i = 0; i < kRanuras; ++i) {
        Ranura& r = e.ranuras[static_cast<std::size_t>(i)];
        if (!r.activa)
            continue;
        ++r.ticks;
        if (r.peticion == nullptr || r.peticion->bytesAvailable() > kCuerpoMaximo) {
            LiberarRanuraDescarga(i);
        } else if (r.peticion->isFinished()) {
            const int estado = r.peticion->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
            if (estado == 200 && r.peticion->error() == QNetworkReply::NoError &&
                GuardarRespuestaTile(r.ruta, r.peticion->readAll()))
                ++guardadas;
            LiberarRanuraDescarga(i);
        } else if (r.ticks > kTicksMaximo) {
            LiberarRanuraDescarga(i);
        }
    }
    for (Ranura& r : e.ranuras) {
        if (r.activa || e.cola.empty())
            continue;
        const Entrada entrada = std::move(e.cola.back());
        e.cola.pop_back();
        r = {Pedir(entrada.url), entrada.ruta, true, 0};
    }
    return guardadas;
}

bool GuardarRespuestaTile(const QString& ruta, const QByteArray& cuerpo)
{
    return cuerpo.size() >= kBytesMinimo && cuerpo.startsWith(kFirmaPng) &&
           modHTTP::EscribirTesela(ruta, cuerpo);
}

} // namespace modDescargas
