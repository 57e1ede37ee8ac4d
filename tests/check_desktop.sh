#!/usr/bin/env bash
# Checks what the program tells desktops of itself: check_desktop.sh VERSION
set -u
cd "$(dirname "$0")/../packaging" || exit 1
metainfo=de.orvan_emporium.emporium3.metainfo.xml

status=0
desktop-file-validate orvan-emporium3.desktop || status=1
appstreamcli validate --no-net "$metainfo" || status=1
grep -q "<release version=\"$1\"" "$metainfo" || { echo "no release $1 in $metainfo"; status=1; }
exit $status
