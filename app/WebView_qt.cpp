#include "app/WebView.h"

#include <QtWebView>

namespace orvex {

void initializeWebView() {
    QtWebView::initialize();
}

} // namespace orvex
