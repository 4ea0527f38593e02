// lunaPintor: the Moon disc with its lit part, painted by scan lines.
//
// The panel of the main window, the calendar and the month's wheel share it. No texture is involved: a
// plain orthographic disc without libration, tilt or earthshine, whose terminator is half an ellipse.
//
// Coordinates are logical pixels of the painter, and (cx, cy) names the middle of a pixel as pixel
// numbers do: the disc that fills a picture of w by h has its centre at w/2 - 0.5, h/2 - 0.5. On a
// surface with a device pixel ratio above 1 the scan lines are rows of device pixels, so the disc stays
// sharp. The painter comes back as it was.
#pragma once

class QPainter;

namespace lunaPintor {

// Paints the whole disc: dark side with outline, then the lit part.
//   R      radius, pixels; nothing is painted unless it is above 0
//   fase   fraction of the synodic cycle, 0 new, 0.25 first quarter, 0.5 full; only the fractional
//          part counts, so 1.25 is 0.25. Waxing Moons are lit on the right, waning ones on the left.
// A row whose lit part is 0.6 pixels wide or less stays dark.
void DibujarLunaEn(QPainter& p, double cx, double cy, double R, double fase);

// Clears a picture of w by h pixels whose corner is the painter's origin, frames it and centres the disc
// in it. A picture of 4 pixels or less in either direction stays as it was.
void PintarLunaPanel(QPainter& p, int w, int h, double fase);

} // namespace lunaPintor
