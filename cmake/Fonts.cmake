# The fonts that npm puts below resources/fonts (see scripts/setup). A build without them uses the
# system's fonts, and icons drawn from the icon font are missing-glyph boxes.

# quillon_embed_fonts(<target>): embeds each font as :/fonts/<name that the program loads>.
function(quillon_embed_fonts target)
    set(packages ${CMAKE_SOURCE_DIR}/resources/fonts/node_modules/@expo-google-fonts)
    # Fonts that are installed after the first configuration are found by the next build.
    file(GLOB installed CONFIGURE_DEPENDS ${packages}/*/*/*.ttf)
    set(fonts
        ibm-plex-sans/400Regular/IBMPlexSans_400Regular.ttf IBMPlexSans.ttf
        ibm-plex-sans/400Regular_Italic/IBMPlexSans_400Regular_Italic.ttf IBMPlexSans-Italic.ttf
        ibm-plex-sans/700Bold/IBMPlexSans_700Bold.ttf IBMPlexSans-Bold.ttf
        ibm-plex-mono/500Medium/IBMPlexMono_500Medium.ttf IBMPlexMono-Medium.ttf
        material-icons/400Regular/MaterialIcons_400Regular.ttf MaterialIcons-Regular.otf)
    while(fonts)
        list(POP_FRONT fonts file alias)
        if(EXISTS ${packages}/${file})
            set_source_files_properties(${packages}/${file} PROPERTIES QT_RESOURCE_ALIAS ${alias})
            list(APPEND found ${packages}/${file})
        else()
            list(APPEND missing ${alias})
        endif()
    endwhile()
    if(missing)
        list(JOIN missing ", " missing)
        message(WARNING "Fonts not installed: ${missing}. Run scripts/setup, or npm ci --prefix resources/fonts.")
    endif()
    if(found)
        qt_add_resources(${target} fonts PREFIX "/fonts" FILES ${found})
    endif()
endfunction()
