// The one place where Asio's non-template code is compiled.
#include <boost/asio/impl/src.hpp>
#include <boost/asio/ssl/impl/src.hpp>
