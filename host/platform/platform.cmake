# What differs between the Linux and the Windows host (included by
# host/CMakeLists.txt, after kestrane_host_core).
if(WIN32)
  target_sources(kestrane_host_core PRIVATE ${CMAKE_CURRENT_LIST_DIR}/library_windows.cpp)
  # The host's sound device as a dsound.dll beside the host: the module
  # imports DirectSoundCreate8 from it (Wine loads it in place of its own with
  # WINEDLLOVERRIDES=dsound=n), and the host imports the device's classes to
  # see what the module did.
  add_library(kestrane_dsound SHARED ${CMAKE_CURRENT_LIST_DIR}/../sound_device.cpp)
  set_target_properties(kestrane_dsound PROPERTIES OUTPUT_NAME dsound PREFIX "" IMPORT_PREFIX "lib"
    IMPORT_SUFFIX ".dll.a")
  target_include_directories(kestrane_dsound PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(kestrane_dsound PRIVATE kestrane_abi)
  target_link_options(kestrane_dsound PRIVATE -static -static-libgcc -static-libstdc++
    -Wl,--export-all-symbols -Wl,--exclude-libs,ALL -Wl,--kill-at)
  target_link_libraries(kestrane_host_core PUBLIC kestrane_dsound)
  target_link_options(kestrane_host_core INTERFACE -static -static-libgcc -static-libstdc++)

  # The smoke run with the system's own DirectSound, in a folder of its own
  # (no dsound.dll beside it).
  add_executable(kestrane-smoke ${CMAKE_CURRENT_LIST_DIR}/smoke_windows.cpp
    ${CMAKE_CURRENT_LIST_DIR}/library_windows.cpp ${PROJECT_SOURCE_DIR}/module/frame/wave.cpp)
  target_include_directories(kestrane-smoke PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(kestrane-smoke PRIVATE kestrane_abi dsound dxguid)
  target_link_options(kestrane-smoke PRIVATE -static -static-libgcc -static-libstdc++)
  set_target_properties(kestrane-smoke PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/smoke)
  add_dependencies(kestrane-smoke kestrane)
else()
  target_sources(kestrane_host_core PRIVATE ${CMAKE_CURRENT_LIST_DIR}/../sound_device.cpp
    ${CMAKE_CURRENT_LIST_DIR}/library_posix.cpp)
endif()
