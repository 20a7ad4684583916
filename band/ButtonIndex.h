#pragma once

/// The fixed index of each item class, by which the item is known everywhere.
enum ButtonIndex : int
{
    RootMenuIndex,
    SeparatorIndex,
    ShowInfoBarIndex,
    SearchGoogleIndex,
    EmailScreenShotPageIndex,
    ColorPickerIndex,
    ConnectToIEInstanceIndex,
    SearchInPageIndex,
    ZoomIndex,
    ScriptErrorAlertIndex,
    ResizeIEWindowIndex,
    ViewSourceIndex,
    RenderingModeIndex,
    OpenPellatronIndex,
    ButtonCount,
};
