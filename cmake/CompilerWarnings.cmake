# One interface target carries the warnings, the sanitizers and the Qt switches of every target.
add_library(quillon_options INTERFACE)
target_compile_definitions(quillon_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_FOREACH QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_STRICT_ITERATORS)
target_compile_options(quillon_options INTERFACE -Wall -Wextra -Wshadow -Wconversion -Wno-sign-conversion)
if(QUILLON_WERROR)
    target_compile_options(quillon_options INTERFACE -Werror)
endif()
if(QUILLON_SANITIZE)
    target_compile_options(quillon_options INTERFACE
        -fsanitize=${QUILLON_SANITIZE} -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(quillon_options INTERFACE -fsanitize=${QUILLON_SANITIZE})
endif()
find_program(MOLD_PROGRAM mold)
if(MOLD_PROGRAM)
    target_link_options(quillon_options INTERFACE -fuse-ld=mold)
endif()
