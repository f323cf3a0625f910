#include "linux/ProcessSetup.h"

#include "linux/services/StandardConsole.h"

#include <EGL/egl.h>
#include <csignal>
#include <dlfcn.h>
#include <fcntl.h>
#include <filesystem>
#include <glib.h>
#include <string>
#include <unistd.h>

namespace orken::desktop {

namespace {

bool hasRenderNode()
{
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator("/dev/dri", error)) {
        if (entry.path().filename().string().starts_with("renderD")) {
            return true;
        }
    }
    return false;
}

/// A program may be started with these closed. What is opened next would take their numbers, and the client's lines
/// would go into it: into the connection to the X server, for one.
void openStandardStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) < 0) {
            // Gets the lowest free number, which is this one.
            (void)open("/dev/null", O_RDWR);
        }
    }
}

/// Lets this process's EGL settle on having no driver. The engine asks for one when it starts, also to draw in
/// software: without a graphics card it got one that brings a compiler along, 50 ms and 20 MB for nothing. The pages'
/// processes do not start without a driver, so the variable must not reach them; EGL reads it once.
void settleOnNoGraphicsDriver()
{
    constexpr const char* kDrivers = "__EGL_VENDOR_LIBRARY_FILENAMES";
    void* library = g_getenv(kDrivers) ? nullptr : dlopen("libEGL.so.1", RTLD_LAZY);
    if (!library) {
        return;
    }
    if (const auto query = reinterpret_cast<decltype(&eglQueryString)>(dlsym(library, "eglQueryString"))) {
        g_setenv(kDrivers, "/nonexistent", TRUE);
        (void)query(EGL_NO_DISPLAY, EGL_EXTENSIONS);
        g_unsetenv(kDrivers);
    }
}

} // namespace

bool prepareProcess()
{
    openStandardStreams();
    const bool renderNode = hasRenderNode();
    const char* home = g_getenv("HOME");
    if (home && !g_file_test(home, G_FILE_TEST_IS_DIR)) {
        // The engine's sandbox does not start with it, and takes the client along; the user database has another.
        reportDiagnostic(std::string("orken: HOME is not a folder and is passed over: ") + home);
        g_unsetenv("HOME");
    }
    // A pipe that nobody reads any more must not end an exam.
    std::signal(SIGPIPE, SIG_IGN);
    if (!renderNode) {
        // Software rendering through OpenGL takes twice as long to the first frame.
        g_setenv("GSK_RENDERER", "cairo", FALSE);
        // Nor is it worth the loading of a software driver, which the toolkit does before the first window.
        g_setenv("GDK_DEBUG", "gl-disable", FALSE);
        settleOnNoGraphicsDriver();
    }
    if (g_file_test("/proc/driver/nvidia/version", G_FILE_TEST_EXISTS)) {
        // The driver shows black pages for the buffers that the engine shares in this way.
        g_setenv("WEBKIT_DISABLE_DMABUF_RENDERER", "1", FALSE);
    }
    return renderNode;
}

} // namespace orken::desktop
