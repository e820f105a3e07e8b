# As dpkg-buildflags and its "hardening=+all": what a page of the tool, or a corpus, could find in it
# ends the program instead of taking it over.
include(CheckPIESupported)
check_pie_supported()

function(kavi_harden target)
    if(NOT KAVI_HARDENED)
        return()
    endif()
    target_compile_options(${target} PRIVATE
        -fstack-protector-strong -Wformat -Werror=format-security
        $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE> $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=2>)
    set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON)
    get_target_property(type ${target} TYPE)
    if(type MATCHES "EXECUTABLE|SHARED_LIBRARY")
        target_link_options(${target} PRIVATE -Wl,-z,relro -Wl,-z,now)
    endif()
endfunction()
