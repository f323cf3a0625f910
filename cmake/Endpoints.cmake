# What a provider sets for its own build (docs/provider-build.md). The defaults are reserved names, so a default build
# reaches nobody.
set(ORKEN_BUNDLE_IDENTIFIER "com.orken.app" CACHE STRING "Reverse-DNS identifier of the client")
set(ORKEN_VERSION "1.0" CACHE STRING "Short version shown to the user and compared with the required one")
set(ORKEN_CONTENT_HOST "content.orken.example" CACHE STRING "Content server: settings document and update image")
set(ORKEN_LOGIN_HOST "login.orken.example" CACHE STRING "Login site, host or host:port")
set(ORKEN_MAIN_PAGE_URL "https://${ORKEN_LOGIN_HOST}/" CACHE STRING "The provider's main page")
set(ORKEN_ANIMATION_HOST "animation.orken.example" CACHE STRING "Host of the waiting animation")
set(ORKEN_IP_ECHO_URL "https://ip.orken.example/" CACHE STRING "Answers with the caller's public address as text")

# The package alone knows these.
set(ORKEN_MAINTAINER "ORKEN <destek@orken.example>" CACHE STRING "Name <address> of who answers for the package")
set(ORKEN_ICON ${PROJECT_SOURCE_DIR}/packaging/orken.svg CACHE FILEPATH "Scalable icon")
set(ORKEN_SYMBOLIC_ICON ${PROJECT_SOURCE_DIR}/packaging/orken-symbolic.svg CACHE FILEPATH "Icon in one colour")
