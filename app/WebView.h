#pragma once

namespace orvex {

/// Prepares Qt's web view, where that module is installed. Before the application object is made.
void initializeWebView();

} // namespace orvex
