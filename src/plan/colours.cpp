#include "plan/colours.h"

#include <algorithm>
#include <cmath>

namespace plan {

namespace {

double linear(int channel) {
    const double part = channel / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(Farbe farbe) {
    return 0.2126 * linear(Rot(farbe)) + 0.7152 * linear(Grün(farbe)) + 0.0722 * linear(Blau(farbe));
}

} // namespace

Farbe aufgehellt(Farbe farbe, int differenz) {
    const auto plus = [=](int channel) { return std::min(channel + differenz, 255); };
    return RGB(plus(Rot(farbe)), plus(Grün(farbe)), plus(Blau(farbe)));
}

Farbe Schriftfarbe(Farbe grund) {
    // Both writings have the same contrast at (L + 0.05)² = 1.05 · 0.05.
    return luminance(grund) > 0.179 ? Schwarz : Weiß;
}

Farbe abgesetzt(Farbe farbe, int stärke) {
    const Farbe ziel = Schriftfarbe(farbe);
    const auto mixed = [=](int from, int to) { return from + (to - from) * stärke / 100; };
    return RGB(mixed(Rot(farbe), Rot(ziel)), mixed(Grün(farbe), Grün(ziel)), mixed(Blau(farbe), Blau(ziel)));
}

} // namespace plan
