# Libraries for formats of export. They are used where they are found; without one, the option of
# its format says which package to install. -DRHEOMARK_GDAL=OFF builds without GDAL in any case.
option(RHEOMARK_NETCDF "Export to NetCDF, if its library is found" ON)
option(RHEOMARK_GDAL "Export to GeoTIFF, if GDAL is found" ON)

set(HAVE_NETCDF OFF)
if(RHEOMARK_NETCDF)
  # By hand: the package of the library would link the shared HDF5 library into our programs, too.
  find_path(NETCDF_INCLUDE_DIR netcdf.h)
  find_library(NETCDF_LIBRARY netcdf)
  if(NETCDF_INCLUDE_DIR AND NETCDF_LIBRARY)
    set(HAVE_NETCDF ON)
    add_library(rheo_netcdf INTERFACE)
    target_include_directories(rheo_netcdf INTERFACE ${NETCDF_INCLUDE_DIR})
    target_link_libraries(rheo_netcdf INTERFACE ${NETCDF_LIBRARY})
  endif()
endif()

set(HAVE_GDAL OFF)
if(RHEOMARK_GDAL)
  find_package(GDAL QUIET)
  if(GDAL_FOUND)
    set(HAVE_GDAL ON)
  endif()
endif()
message(STATUS "Formats of export: NetCDF ${HAVE_NETCDF}, GDAL ${HAVE_GDAL}")
