# Sourced by the other scripts: which Qt to build against (QT_MAJOR, 5 by default), the
# Debian packages it needs, where its build folders are and where its designer is.

cc_qt_major=${QT_MAJOR:-5}
case "$cc_qt_major" in
5)
    cc_qt_packages=(
        qtbase5-dev qtbase5-private-dev qttools5-dev qttools5-private-dev qttools5-dev-tools
        libqt5svg5            # Designer's own icons include SVGs
    )
    cc_designer=/usr/lib/qt5/bin/designer
    cc_build_suffix=""
    ;;
6)
    cc_qt_packages=(
        qt6-base-dev qt6-base-private-dev libqt6opengl6-dev   # Designer's headers need OpenGL's
        qt6-tools-dev qt6-tools-private-dev qt6-tools-dev-tools qt6-l10n-tools
        designer-qt6 qt6-qpa-plugins
        libqt6svg6            # Designer's own icons include SVGs
    )
    cc_designer=/usr/lib/qt6/bin/designer
    cc_build_suffix="-qt6"
    ;;
*)
    echo "QT_MAJOR must be 5 or 6, not '$cc_qt_major'" >&2
    exit 1
    ;;
esac

# cc_build_dir ON|OFF: the build folder, with or without the sanitizers (BUILD_DIR wins).
cc_build_dir() {
    local suffix=$cc_build_suffix
    [ "$1" = ON ] && suffix="$suffix-asan"
    echo "${BUILD_DIR:-$root/build$suffix}"
}
