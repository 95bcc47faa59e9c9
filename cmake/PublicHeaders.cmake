# The one list of what clients may include, as <Package/Name>. The header of Name is its lower-case file.
set(CORVEL_PUBLIC_HEADERS
    CheckAppUpdate
    FileDownloader
    ProxyNetworkAccessManager
    ProxyUserSettings
    RequestLimits
    TimeZoneHelper)

set(HUELOFT_PUBLIC_HEADERS
    PIconHelper
    PIconHelper16x16
    PIconHelperBase
    PMessageBox
    POrvGuiTheme
    PPlayerIconHelper
    PTarvoPlayerIconHelper)

set(CORVELGUI_PUBLIC_HEADERS
    frame/PBaseDialog
    frame/PMainWindow
    frame/PWidget
    frame/ToolBarWithLabel
    settings/ISettingsPage
    settings/ISettingsPageProvider
    settings/IUserSettings
    settings/OptionPageProvider
    settings/SettingsBaseWidget
    settings/SettingsManager
    timeline/Indicator
    timeline/Ruler
    timeline/RulerMarker
    timeline/RulerMarkerButton
    timeline/TimelineScroll
    timeline/TrackDescription
    timeline/ZoomTimeline
    timeline/ZoomTimelineOperation
    timeline/Zoomer)
