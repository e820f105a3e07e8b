# Turns the files of the page into two constants of C++, in FOLDER/page_text.h: what a page has before its sentences,
# and what it has after them.
#
#     cmake -D FOLDER=build/page -P tools/kavi-tn/page/make_page.cmake
cmake_minimum_required(VERSION 3.25)

file(READ ${CMAKE_CURRENT_LIST_DIR}/page.html text)
foreach(file IN ITEMS page.css page.js)
    file(READ ${CMAKE_CURRENT_LIST_DIR}/${file} text_of_file)
    string(REPLACE "@${file}@\n" "${text_of_file}" text "${text}")
endforeach()
string(REPLACE "@sentences@\n" ")page\";\ninline constexpr std::string_view PAGE_END = R\"page(" text "${text}")
file(CONFIGURE OUTPUT ${FOLDER}/page_text.h @ONLY CONTENT [[
#include <string_view>

inline constexpr std::string_view PAGE_BEGIN = R"page(@text@)page";
]])
