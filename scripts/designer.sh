#!/usr/bin/env bash
# Opens the real Qt Designer with the CommonControls plug-in loaded and the example forms
# open, after building what is missing (scripts/setup.sh).
#
#   scripts/designer.sh [form.ui ...]        default: examples/forms/*.ui
#
# On a machine without a display ($DISPLAY empty) Designer runs on a virtual display: once
# its window is up, a screenshot of the whole screen is written to $SCREENSHOT (default
# <build>/designer.png) and Designer is closed again.
#
# QT_MAJOR=6 opens Qt 6's Designer with the Qt 6 build (build-qt6). BUILD_DIR picks the build
# folder (default: build); NO_BUILD=1 skips the build step.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
source "$root/scripts/qtversion.sh"
build_dir=$(cc_build_dir OFF)
if [ "${NO_BUILD:-0}" != 1 ]; then
    BUILD_DIR=$build_dir "$root/scripts/setup.sh"
fi

# Designer scans <path>/designer for every plug-in path; the build makes a folder whose
# designer/ links to just our module. The module finds CommonControls in the build tree
# through its run path.
plugin_root="$build_dir/designer-plugins"
if [ ! -e "$plugin_root/designer/libCommonControlsPlugin.so" ]; then
    echo "No plug-in module in $plugin_root/designer: build first (scripts/setup.sh)." >&2
    exit 1
fi
export QT_PLUGIN_PATH="$plugin_root${QT_PLUGIN_PATH:+:$QT_PLUGIN_PATH}"

forms=("$@")
if [ "${#forms[@]}" -eq 0 ]; then
    forms=("$root"/examples/forms/*.ui)
fi

if [ -n "${DISPLAY:-}" ]; then
    exec "$cc_designer" "${forms[@]}"
fi

screenshot=${SCREENSHOT:-$build_dir/designer.png}
# A private settings folder: Designer opens in its default layout, whatever a previous run
# left behind.
settings=$(mktemp -d)
trap 'rm -rf "$settings"' EXIT
export XDG_CONFIG_HOME="$settings"
# Qt's own widget-box groups start closed, so that ours are in view on the screenshot.
mkdir -p "$settings/QtProject"
cat > "$settings/QtProject/Designer.conf" <<'CONF'
[WidgetBox]
Closed%20categories=Layouts, Spacers, Buttons, Item Views (Model-Based), Item Widgets (Item-Based), Containers, Input Widgets, Display Widgets
CONF

cat > "$settings/run.sh" <<'INNER'
#!/usr/bin/env bash
set -u
designer=$1
screenshot=$2
shift 2
"$designer" -geometry 1600x1000+0+0 "$@" &
pid=$!
# Wait for the main window and for the form window to be mapped.
for _ in $(seq 1 120); do
    if xwininfo -root -tree 2>/dev/null | grep -q '"Qt Designer"'; then
        break
    fi
    sleep 0.5
done
sleep 3   # let the widget box and the form finish painting
import -window root "$screenshot"
kill "$pid" 2>/dev/null
wait "$pid" 2>/dev/null
exit 0
INNER
chmod +x "$settings/run.sh"
xvfb-run -a -s "-screen 0 1600x1000x24" "$settings/run.sh" "$cc_designer" "$screenshot" "${forms[@]}"
if [ ! -s "$screenshot" ]; then
    echo "No screenshot was written." >&2
    exit 1
fi
echo "Screenshot of Qt Designer: $screenshot"
