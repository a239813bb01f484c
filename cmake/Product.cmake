# What the product is called, its version, and whose work it is made of. Everything that shows one of these (the
# program, its about page, the packages, the licence texts beside them) takes it from here.
set(QUIVERA_NAME "Quivera")
set(QUIVERA_VENDOR "Orvex")
set(QUIVERA_CONTACT "The Quivera companion authors <authors@quivera.invalid>") # no mailbox is behind it
set(QUIVERA_VERSION 2.4.2.14129)
set(QUIVERA_VERSION_DATE 2026-11-23)
set(QUIVERA_SUMMARY "Desktop companion for networked haptic motion-seat controllers")
set(QUIVERA_COPYRIGHT "2026 The Quivera companion authors")
set(QUIVERA_LICENSE MIT)

# One line for each part of others that is shipped or linked in:
#   name|licence|home page|text in packaging/licenses/|whose work
# The names of the licences are those of the SPDX list. No field holds a semicolon.
set(QUIVERA_PARTS
  "Qt 5.15|LGPL-3.0-only|https://www.qt.io/|LGPL-3.0.txt|The Qt Company Ltd. and other contributors"
  "OpenSSL 3|Apache-2.0|https://www.openssl.org/|Apache-2.0.txt|The OpenSSL Project Authors"
  "Boost|BSL-1.0|https://www.boost.org/|BSL-1.0.txt|The Boost authors"
  "spdlog|MIT|https://github.com/gabime/spdlog|spdlog.txt|2015-present Gabi Melman and spdlog contributors"
  "fmt|MIT|https://fmt.dev/|fmt.txt|2012-present Victor Zverovich and fmt contributors"
  "TinyXML-2|Zlib|https://github.com/leethomason/tinyxml2|tinyxml2.txt|Lee Thomason"
  "RapidJSON|MIT|https://rapidjson.org/|RapidJSON.txt|2015 THL A29 Limited, a Tencent company, and Milo Yip"
  "Roboto|Apache-2.0|https://fonts.google.com/specimen/Roboto|Apache-2.0.txt|2011 Google Inc.")

# On Windows, where no system brings them: what Qt is built with, and what the compiler adds.
set(QUIVERA_PARTS_WINDOWS
  "zlib|Zlib|https://zlib.net/|zlib.txt|Jean-loup Gailly and Mark Adler"
  "libpng|libpng-2.0|http://www.libpng.org/pub/png/libpng.html|libpng.txt|The PNG Reference Library Authors"
  "libjpeg-turbo|IJG|https://libjpeg-turbo.org/|libjpeg-turbo.txt|The Independent JPEG Group and the libjpeg-turbo Project"
  "FreeType|FTL|https://freetype.org/|FreeType.txt|David Turner, Robert Wilhelm and Werner Lemberg"
  "HarfBuzz|MIT-Modern-Variant|https://harfbuzz.github.io/|HarfBuzz.txt|The HarfBuzz authors"
  "PCRE2|BSD-3-Clause|https://www.pcre.org/|PCRE2.txt|1997-2022 University of Cambridge"
  "double-conversion|BSD-3-Clause|https://github.com/google/double-conversion|double-conversion.txt|The V8 project authors"
  "GCC runtime libraries|GPL-3.0-or-later WITH GCC-exception-3.1|https://gcc.gnu.org/|GCC-exception-3.1.txt|Free Software Foundation, Inc."
  "mingw-w64 runtime|ZPL-2.1|https://www.mingw-w64.org/|mingw-w64.txt|The mingw-w64 project")

# Texts that those of the parts build on: the LGPL 3 and the compiler's exception say how the GPL 3 changes.
set(QUIVERA_LICENSE_TEXTS GPL-3.0.txt)
