# The product lane: the program itself, the tests that need real windows, and the
# tests that drive the finished program from outside.
enable_language(RC)
set(CMAKE_RC_FLAGS "${CMAKE_RC_FLAGS} --codepage=1252")

target_compile_definitions(tellary_options INTERFACE
  WINVER=0x0601 _WIN32_WINNT=0x0601 _WIN32_IE=0x0700 NOMINMAX WIN32_LEAN_AND_MEAN STRICT)
target_compile_options(tellary_options INTERFACE
  -ffunction-sections -fdata-sections -fstack-protector-strong
  # Doubles of 64 bits, as everywhere else: the old floating-point unit computes in 80.
  -msse2 -mfpmath=sse)
# The linker has to be told as well: the guard lives in a library of its own here.
target_link_options(tellary_options INTERFACE -fstack-protector-strong)

# Size matters everywhere but in the document, which is read and written at the disk's pace, and
# where every pixel of a page passes through.
string(REPLACE "-O3" "-Os" CMAKE_CXX_FLAGS_RELEASE "${CMAKE_CXX_FLAGS_RELEASE}")
foreach(source IN LISTS plain_sources)
  if(source MATCHES "/document/[^/]*$" OR source MATCHES "/smooth_shrink.cpp$")
    set_property(SOURCE ${source} APPEND PROPERTY COMPILE_OPTIONS $<$<CONFIG:Release>:-O2>)
  endif()
endforeach()

# Libraries of dialogs, printing and the shell are loaded when they are first called: together
# they take a tenth of the start. So are all that Windows would look for beside the program first:
# when they are called, the program has told where to look. What is called of each is listed in its
# .def file; a call of another function of it would load it at the start again.
foreach(library comdlg32 ole32 shell32 uxtheme version winspool)
  set(definition ${CMAKE_SOURCE_DIR}/cmake/late/${library}.def)
  set(archive lib${library}_late.a) # its symbols are named after the path it is given
  add_custom_command(OUTPUT ${archive} DEPENDS ${definition} WORKING_DIRECTORY ${CMAKE_BINARY_DIR}
    COMMAND ${CMAKE_DLLTOOL} --kill-at --input-def ${definition} --output-delaylib ${archive})
  list(APPEND late_libraries ${CMAKE_BINARY_DIR}/${archive})
  # The linker takes what only a table of imports points at for unused, and would drop it.
  file(STRINGS ${definition} functions REGEX "@")
  list(TRANSFORM functions PREPEND "-Wl,--undefined=_" OUTPUT_VARIABLE functions)
  list(APPEND late_functions ${functions})
endforeach()
add_custom_target(late_libraries DEPENDS ${late_libraries})

add_library(tellary_windows STATIC ${windows_sources})
add_dependencies(tellary_windows late_libraries)
target_link_libraries(tellary_windows PUBLIC tellary_core ${late_libraries} delayimp
  comctl32 gdi32 user32 advapi32)
target_link_options(tellary_windows PUBLIC ${late_functions})

add_executable(Tellary WIN32 app/entry_win.cpp app/tellary.rc)
target_link_libraries(Tellary PRIVATE tellary_windows)
target_link_options(Tellary PRIVATE -static -Wl,--gc-sections -Wl,--dynamicbase -Wl,--nxcompat
  $<$<CONFIG:Release>:-s>)
# Of these Windows knows the place before the program runs: from a list of its own, that of
# comctl32 from the manifest.
add_test(NAME late_libraries COMMAND sh -c
  "! ${CMAKE_OBJDUMP} -p '$<TARGET_FILE:Tellary>' | grep 'DLL Name' | grep -viE ' (advapi32|comctl32|gdi32|kernel32|msvcrt|user32)[.]dll'")
set_tests_properties(late_libraries PROPERTIES LABELS app)
file(GLOB pictures CONFIGURE_DEPENDS app/icons/*.ico app/icons/*.bmp)
set_source_files_properties(app/tellary.rc PROPERTIES OBJECT_DEPENDS
  "${CMAKE_SOURCE_DIR}/app/version.h;${CMAKE_SOURCE_DIR}/library/resource_ids.h;${CMAKE_SOURCE_DIR}/app/app.manifest;${pictures}")

if(EXISTS /usr/src/googletest)
  set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
  set(gtest_force_shared_crt ON CACHE BOOL "" FORCE)
  add_subdirectory(/usr/src/googletest googletest EXCLUDE_FROM_ALL)
  # Warnings of this project's own code only.
  file(GLOB_RECURSE win_tests CONFIGURE_DEPENDS tests/*_win_test.cpp)
  file(GLOB win_support CONFIGURE_DEPENDS tests/support/*_win.cpp)
  file(GLOB_RECURSE app_tests CONFIGURE_DEPENDS tests/app/*_app_test.cpp)
  file(GLOB app_support CONFIGURE_DEPENDS tests/app/support/*.cpp tests/support/print*_win.cpp)

  if(win_tests)
    add_executable(tests_win ${win_tests} ${win_support} app/tellary.rc)
    target_link_libraries(tests_win PRIVATE tellary_windows gmock gtest gtest_main)
    # Only full_disk has a disk to fill, and only host_files looks at files from outside.
    add_test(NAME win COMMAND tests_win "--gtest_filter=-*FullDisk*:HostFiles*")
    set_tests_properties(win PROPERTIES LABELS win)
    add_test(NAME full_disk COMMAND ${CMAKE_SOURCE_DIR}/tools/full_disk.sh $<TARGET_FILE:tests_win>)
    set_tests_properties(full_disk PROPERTIES LABELS win SKIP_RETURN_CODE 77)
    add_test(NAME host_files COMMAND ${CMAKE_SOURCE_DIR}/tools/host_files.sh $<TARGET_FILE:tests_win>)
    set_tests_properties(host_files PROPERTIES LABELS win)
  endif()
  if(app_tests)
    add_executable(tests_app ${app_tests} ${app_support})
    target_link_libraries(tests_app PRIVATE tellary_windows gmock gtest gtest_main)
    # All but the pictures go without a screen, several times faster.
    add_test(NAME app COMMAND tests_app --gtest_filter=-Pictures.*)
    set(app_environment "TELLARY_EXE=$<TARGET_FILE:Tellary>;TELLARY_SAMPLES=${CMAKE_SOURCE_DIR}/samples")
    set_tests_properties(app PROPERTIES LABELS app ENVIRONMENT
      "${app_environment};TELLARY_PICTURES=${CMAKE_BINARY_DIR}/pictures")
    foreach(dpi 96 144 192)
      add_test(NAME app_pictures_${dpi} COMMAND ${CMAKE_SOURCE_DIR}/tools/on_screen.sh
        $<TARGET_FILE:tests_app> --gtest_filter=Pictures.*)
      set_tests_properties(app_pictures_${dpi} PROPERTIES LABELS app ENVIRONMENT
        "${app_environment};DPI=${dpi};TELLARY_PICTURES=${CMAKE_BINARY_DIR}/pictures-${dpi}")
    endforeach()
  endif()
endif()

if(TELLARY_BENCH)
  file(GLOB programs CONFIGURE_DEPENDS bench/*_win.cpp)
  foreach(source IN LISTS programs)
    get_filename_component(name ${source} NAME_WE)
    # With the program's own manifest: it decides which controls are used.
    add_executable(bench_${name} ${source} app/tellary.rc)
    target_link_libraries(bench_${name} PRIVATE tellary_windows)
    if(name STREQUAL printing_win)
      target_sources(bench_${name} PRIVATE tests/support/printers_win.cpp)
      target_link_libraries(bench_${name} PRIVATE winspool psapi)
    endif()
    # Nobody can wait for a console program to be ready for the user.
    if(name MATCHES "^empty_window")
      set_target_properties(bench_${name} PROPERTIES WIN32_EXECUTABLE ON)
    endif()
  endforeach()
endif()
