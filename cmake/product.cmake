# The product lane: the program, the tests that need real windows, and the tests that drive the
# finished program from outside.
enable_language(RC)
set(CMAKE_RC_FLAGS "${CMAKE_RC_FLAGS} --codepage=1252")

target_compile_definitions(tellary_options INTERFACE
  WINVER=0x0601 _WIN32_WINNT=0x0601 _WIN32_IE=0x0700 NOMINMAX WIN32_LEAN_AND_MEAN STRICT)
target_compile_options(tellary_options INTERFACE
  -ffunction-sections -fdata-sections -fstack-protector-strong
  # Doubles of 64 bits, as in the host lane; the old floating-point unit computes with 80.
  -msse2 -mfpmath=sse)
# The linker needs the option too, because mingw has the stack guard in a library of its own.
target_link_options(tellary_options INTERFACE -fstack-protector-strong)

# The program is built for size. Only the document, whose reading and writing must keep up with the
# disk, and the code that handles every pixel of a page are built for speed.
string(REPLACE "-O3" "-Os" CMAKE_CXX_FLAGS_RELEASE "${CMAKE_CXX_FLAGS_RELEASE}")
foreach(source IN LISTS plain_sources)
  if(source MATCHES "/document/[^/]*$" OR source MATCHES "/smooth_shrink.cpp$")
    set_property(SOURCE ${source} APPEND PROPERTY COMPILE_OPTIONS $<$<CONFIG:Release>:-O2>)
  endif()
endforeach()

# The only libraries that are imported. Windows always takes them from the system's folder, by its list
# of known libraries (comctl32 by the manifest); any other it would look for in the program's folder
# first. Functions of other libraries are called through windowing/system_library_win.h.
set(CMAKE_CXX_STANDARD_LIBRARIES "")
add_library(tellary_windows STATIC ${windows_sources})
target_link_libraries(tellary_windows PUBLIC tellary_core
  advapi32 comctl32 comdlg32 gdi32 ole32 shell32 user32)

add_executable(Tellary WIN32 app/entry_win.cpp app/tellary.rc)
target_link_libraries(Tellary PRIVATE tellary_windows)
target_link_options(Tellary PRIVATE -static -Wl,--gc-sections -Wl,--dynamicbase -Wl,--nxcompat
  $<$<CONFIG:Release>:-s>)
file(GLOB pictures CONFIGURE_DEPENDS app/icons/*.ico app/icons/*.bmp)
set_source_files_properties(app/tellary.rc PROPERTIES OBJECT_DEPENDS
  "${CMAKE_SOURCE_DIR}/app/version.h;${CMAKE_SOURCE_DIR}/library/resource_ids.h;${CMAKE_SOURCE_DIR}/app/app.manifest;${pictures}")

if(EXISTS /usr/src/googletest)
  set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
  set(gtest_force_shared_crt ON CACHE BOOL "" FORCE)
  add_subdirectory(/usr/src/googletest googletest EXCLUDE_FROM_ALL)
  # Turns on warnings for this project's code only.
  file(GLOB_RECURSE win_tests CONFIGURE_DEPENDS tests/*_win_test.cpp)
  file(GLOB win_support CONFIGURE_DEPENDS tests/support/*_win.cpp)
  file(GLOB_RECURSE app_tests CONFIGURE_DEPENDS tests/app/*_app_test.cpp)
  file(GLOB app_support CONFIGURE_DEPENDS tests/app/support/*.cpp tests/support/print*_win.cpp)

  if(win_tests)
    add_executable(tests_win ${win_tests} ${win_support} app/tellary.rc)
    target_link_libraries(tests_win PRIVATE tellary_windows winspool gmock gtest gtest_main)
    # The tests left out here run in full_disk, host_files and looks below.
    add_test(NAME win COMMAND tests_win "--gtest_filter=-*FullDisk*:HostFiles*:Looks*")
    set_tests_properties(win PROPERTIES LABELS win)
    add_test(NAME full_disk COMMAND ${CMAKE_SOURCE_DIR}/tools/full_disk.sh $<TARGET_FILE:tests_win>)
    set_tests_properties(full_disk PROPERTIES LABELS win SKIP_RETURN_CODE 77)
    add_test(NAME host_files COMMAND ${CMAKE_SOURCE_DIR}/tools/host_files.sh $<TARGET_FILE:tests_win>)
    set_tests_properties(host_files PROPERTIES LABELS win)
    add_test(NAME looks COMMAND ${CMAKE_SOURCE_DIR}/tools/looks.sh $<TARGET_FILE:tests_win>)
    set_tests_properties(looks PROPERTIES LABELS win)
    add_crashing(${CMAKE_CROSSCOMPILING_EMULATOR} win gtest)
  endif()
  if(app_tests)
    add_executable(tests_app ${app_tests} ${app_support})
    target_link_libraries(tests_app PRIVATE tellary_windows winspool gmock gtest gtest_main)
    add_test(NAME app COMMAND tests_app)
    set_tests_properties(app PROPERTIES LABELS app ENVIRONMENT
      "TELLARY_EXE=$<TARGET_FILE:Tellary>;TELLARY_SAMPLES=${CMAKE_SOURCE_DIR}/samples")
  endif()
endif()

if(TELLARY_BENCH)
  file(GLOB programs CONFIGURE_DEPENDS bench/*_win.cpp)
  foreach(source IN LISTS programs)
    get_filename_component(name ${source} NAME_WE)
    # With the program's manifest, which selects the version of the controls.
    add_executable(bench_${name} ${source} app/tellary.rc)
    target_link_libraries(bench_${name} PRIVATE tellary_windows)
    if(name STREQUAL printing_win)
      target_sources(bench_${name} PRIVATE tests/support/printers_win.cpp)
      target_link_libraries(bench_${name} PRIVATE winspool psapi)
    endif()
    # bench_start_win waits until this program is idle, which is impossible for a console program.
    if(name MATCHES "^empty_window")
      set_target_properties(bench_${name} PROPERTIES WIN32_EXECUTABLE ON)
    endif()
  endforeach()
endif()
