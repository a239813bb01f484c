#include "app/WebView.h"

namespace orvex {

void initializeWebView() {}

} // namespace orvex
