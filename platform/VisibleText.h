// Text from outside (a line of the wire, a file name, a path) as it may stand in a message or on a terminal.
#pragma once

#include <string>
#include <string_view>

namespace veerwatch {

/// `text` as UTF-8 in which nothing steers a terminal or a text box: each control character but the tab is
/// replaced by its picture, U+2400 and following, one of U+0080 to U+009F by the pictures of the two
/// characters that mean the same ("␛[" for U+009B), and each byte that is no UTF-8 by U+FFFD. A text that
/// went through it once stays as it is.
std::string VisibleText(std::string_view text);

/// The same of bytes of any kind: each one is the code point of the same number, so none is lost.
std::string VisibleBytes(std::string_view bytes);

}  // namespace veerwatch
