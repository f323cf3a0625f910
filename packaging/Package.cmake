# The Debian package's layout under /usr, and what scripts/package gives to debhelper, in debian/ of the build.
string(REGEX REPLACE " *<.*" "" ORKEN_DEVELOPER "${ORKEN_MAINTAINER}")
# Both are the time of SOURCE_DATE_EPOCH when that is set.
string(TIMESTAMP ORKEN_DATE "%Y-%m-%d" UTC)
string(TIMESTAMP ORKEN_CHANGELOG_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC)

configure_file(orken.desktop.in ${ORKEN_BUNDLE_IDENTIFIER}.desktop @ONLY)
configure_file(metainfo.xml.in ${ORKEN_BUNDLE_IDENTIFIER}.metainfo.xml @ONLY)
configure_file(orken.1.in orken.1 @ONLY)
foreach(file control changelog copyright)
  configure_file(debian/${file}.in debian/${file} @ONLY)
endforeach()
configure_file(debian/rules debian/rules COPYONLY)
configure_file(debian/lintian-overrides debian/lintian-overrides COPYONLY)

function(orken_install_file file folder)
  install(FILES ${file} DESTINATION ${folder} COMPONENT package ${ARGN})
endfunction()

set(MADE ${CMAKE_CURRENT_BINARY_DIR}/${ORKEN_BUNDLE_IDENTIFIER})
set(ICONS share/icons/hicolor)
install(TARGETS orken DESTINATION bin COMPONENT package)
install(TARGETS ${ORKEN_PARTS} DESTINATION lib/orken COMPONENT package)
orken_install_file(${MADE}.desktop share/applications)
orken_install_file(${MADE}.metainfo.xml share/metainfo)
orken_install_file(${ORKEN_ICON} ${ICONS}/scalable/apps RENAME ${ORKEN_BUNDLE_IDENTIFIER}.svg)
orken_install_file(${ORKEN_SYMBOLIC_ICON} ${ICONS}/symbolic/apps RENAME ${ORKEN_BUNDLE_IDENTIFIER}-symbolic.svg)
orken_install_file(${CMAKE_CURRENT_BINARY_DIR}/orken.1 share/man/man1)

set(ORKEN_HOSTS)
foreach(value CONTENT_HOST LOGIN_HOST MAIN_PAGE_URL ANIMATION_HOST IP_ECHO_URL MAINTAINER)
  string(APPEND ORKEN_HOSTS "set(ORKEN_${value} [==[${ORKEN_${value}}]==])\nlist(APPEND values ORKEN_${value})\n")
endforeach()
configure_file(CheckHosts.cmake.in CheckHosts.cmake @ONLY)
