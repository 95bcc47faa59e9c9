#include "rulermarker.h"

namespace CorvelGui {

IRulerMarkerIconProvider::~IRulerMarkerIconProvider() = default;

} // namespace CorvelGui
