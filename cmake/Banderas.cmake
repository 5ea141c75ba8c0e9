# One target carries every compiler flag; all other targets link it.
add_library(tarvo_banderas INTERFACE)
target_compile_features(tarvo_banderas INTERFACE cxx_std_20)
target_compile_options(tarvo_banderas INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Woverloaded-virtual
    $<$<BOOL:${TARVO_ESTRICTO}>:-Werror>)
target_compile_definitions(tarvo_banderas INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH
    QT_NO_CONTEXTLESS_CONNECT QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_STRICT_ITERATORS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(TARVO_SANITIZAR)
    target_compile_options(tarvo_banderas INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(tarvo_banderas INTERFACE -fsanitize=address,undefined)
endif()
