# Has Qt's larger libraries compiled in pieces of eight files, which takes less than half the time of
# eight. Not every file bears company: its helpers are named like a neighbour's, or it takes away
# macros that all need.
function(compile_in_pieces)
    set(alone
        qaccessiblewidgets.cpp qcborstreamwriter.cpp qlogging.cpp qmetaobjectbuilder.cpp
        qpixmapcache.cpp qpkmhandler.cpp qplatformintegrationfactory.cpp qsidebar.cpp
        qsimd.cpp qstring.cpp qteamcitylogger.cpp qunicodetools.cpp qurlrecode.cpp
        qversiontagging.cpp qwindowsfontengine.cpp qwindowspointerhandler.cpp
        qwindowsprintersupport.cpp qwindowsysteminterface.cpp removed_api.cpp)
    foreach(library IN ITEMS
            Core Gui Widgets PrintSupport Test BundledHarfbuzz QWindowsIntegrationPlugin)
        get_target_property(folder ${library} SOURCE_DIR)
        get_target_property(sources ${library} SOURCES)
        list(FILTER sources INCLUDE REGEX "\\.(cpp|cc)$")
        set(count 0)
        foreach(source IN LISTS sources)
            math(EXPR piece "${count} / 8")
            math(EXPR count "${count} + 1")
            cmake_path(GET source FILENAME name)
            cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY ${folder})
            if(NOT name IN_LIST alone)
                set_property(SOURCE ${source} TARGET_DIRECTORY ${library}
                    PROPERTY UNITY_GROUP ${piece})
            endif()
        endforeach()
        set_target_properties(${library} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
    endforeach()
endfunction()
cmake_language(DEFER CALL compile_in_pieces)
