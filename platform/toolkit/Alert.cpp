#include "platform/toolkit/Alert.h"

namespace corvana {

AlertPresenter::~AlertPresenter() = default;

} // namespace corvana
