// SPDX-License-Identifier: Apache-2.0
// A module for Xorg with its "dummy" driver, which has outputs and modes but neither rotation nor scale although
// nothing of it is ever drawn: this lets RandR rotate and scale them. For tests only.
#include <xorg-server.h>

#include <extnsionst.h>
#include <xf86.h>
#include <xf86Crtc.h>
#include <xf86Module.h>
#include <xf86RandR12.h>

static PixmapPtr noShadow(xf86CrtcPtr crtc, void* data, int width, int height)
{
    (void)crtc, (void)data, (void)width, (void)height;
    return NULL;
}

// Runs when the screens stand.
static void letRotate(void)
{
    static xf86CrtcFuncsRec functions;

    for (int i = 0; xf86Screens[i]; ++i) {
        xf86CrtcConfigPtr config = XF86_CRTC_CONFIG_PTR(xf86Screens[i]);
        for (int c = 0; c < config->num_crtc; ++c) {
            functions = *config->crtc[c]->funcs;
            functions.shadow_create = noShadow;
            config->crtc[c]->funcs = &functions;
            config->crtc[c]->driverIsPerformingTransform = XF86DriverTransformOutput |
                                                           XF86DriverTransformCursorImage |
                                                           XF86DriverTransformCursorPosition;
        }
        xf86RandR12SetRotations(xf86Screens[i]->pScreen,
                                RR_Rotate_0 | RR_Rotate_90 | RR_Rotate_180 | RR_Rotate_270 | RR_Reflect_X |
                                    RR_Reflect_Y);
        xf86RandR12SetTransformSupport(xf86Screens[i]->pScreen, TRUE);
    }
}

static const ExtensionModule extension = {letRotate, "LUMEN-TEST-ROTATION", NULL};

static XF86ModuleVersionInfo version = {
    "rotation", MODULEVENDORSTRING, MODINFOSTRING1, MODINFOSTRING2, XORG_VERSION_CURRENT, 1, 0, 0,
    ABI_CLASS_EXTENSION, ABI_EXTENSION_VERSION, MOD_CLASS_EXTENSION, {0, 0, 0, 0}};

static void* setup(void* module, void* options, int* majorError, int* minorError)
{
    (void)options, (void)majorError, (void)minorError;
    LoadExtensionList(&extension, 1, FALSE);
    return module;
}

_X_EXPORT XF86ModuleData rotationModuleData = {&version, setup, NULL};
