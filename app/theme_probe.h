#pragma once

/// Whether the desktop is in dark mode, read from the setting that Windows keeps for applications.
/// Without that setting, and so on every other system, the desktop counts as light.
bool desktop_is_dark();
