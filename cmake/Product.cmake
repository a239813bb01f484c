# What the product is called, its version, and whose work it is made of. Everything that shows one of these (the
# program, its about page, the packages, the licence texts beside them) takes it from here.
set(QUIVERA_NAME "Quivera")
set(QUIVERA_VENDOR "Orvex")
set(QUIVERA_VERSION 2.4.2.14129)
set(QUIVERA_SUMMARY "Desktop companion for networked haptic motion-seat controllers")
set(QUIVERA_COPYRIGHT "2026 The Quivera companion authors")
set(QUIVERA_LICENSE MIT)

# One line for each part of others that is shipped or linked in: name|licence|home page|text in packaging/licenses/.
# The names of the licences are those of the SPDX list.
set(QUIVERA_PARTS
  "Qt 5.15|LGPL-3.0-only|https://www.qt.io/|LGPL-3.0.txt"
  "OpenSSL 3|Apache-2.0|https://www.openssl.org/|Apache-2.0.txt"
  "Boost|BSL-1.0|https://www.boost.org/|BSL-1.0.txt"
  "spdlog|MIT|https://github.com/gabime/spdlog|spdlog.txt"
  "fmt|MIT|https://fmt.dev/|fmt.txt"
  "TinyXML-2|Zlib|https://github.com/leethomason/tinyxml2|tinyxml2.txt"
  "RapidJSON|MIT|https://rapidjson.org/|RapidJSON.txt"
  "Roboto|Apache-2.0|https://fonts.google.com/specimen/Roboto|Apache-2.0.txt")
