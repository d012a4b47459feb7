#include "MacWindowStyle.h"

namespace qf {

void applyMacWindowStyle(QWidget*) {}

} // namespace qf
