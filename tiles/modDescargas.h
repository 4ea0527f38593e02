// modDescargas: the background queue of base map tiles.
//
// A list of waiting tiles feeds six requests that run inside Qt's network access; a timer of the caller
// (every 140 ms) polls them with SondearDescargas, so nothing blocks and no callback reaches the window.
// The list is served last in, first out. A failed tile is dropped without a word and simply stays off disk:
// the next refresh of the view queues it again.
//
// A request is a plain GET with our user agent: no Accept header, no cookies, no cache headers, encoding
// "identity" (a tile is kept byte for byte), at most 5 redirects and never to a less safe scheme, through
// the system's proxy. A body above 8 MiB ends the request.
//
// User-interface thread only, with an application object alive.
#pragma once

#include <QByteArray>
#include <QString>

namespace modDescargas {

inline constexpr int kIntervaloMs = 140; // of the polling timer
inline constexpr int kRanuras = 6;
inline constexpr int kTicksMaximo = 90;                  // about 12.6 s; the request ends on the next one
inline constexpr qint64 kCuerpoMaximo = 8 * 1024 * 1024; // bytes

// Gets the list ready and empty; a second call only empties it.
void IniciarColaDescargas();

// Forgets what waits. Running requests go on.
void VaciarColaDescargas();

// Ends every request at once and lets the network go. To be called before the application object ends.
void CerrarColaDescargas();

// Adds a tile, unless its path already waits or runs (letter case ignored).
void EncolarDescarga(const QString& url, const QString& ruta);

bool HayDescargasPendientes();
int ContarDescargasPendientes(); // waiting plus running

// One poll: files what has come, drops what failed or passed its ticks, starts what fits. Answers how many
// tiles were saved.
int SondearDescargas();

// Frees slot i, 0 to 5, ending its request if it still runs.
void LiberarRanuraDescarga(int i);

// Files a response under the cache root: at least 101 bytes and a PNG signature (JPEG is refused). False if
// it is refused or cannot be written.
bool GuardarRespuestaTile(const QString& ruta, const QByteArray& cuerpo);

} // namespace modDescargas
