# Where the Qt for Windows lives: outside the tree, so that every copy of it shares one.
versione_qt=$(dpkg-query -W -f='${source:Upstream-Version}' qt6-base-dev)
versione_qt=${versione_qt%%+*}
deposito=${TARVEL_DEPOSITO:-${XDG_CACHE_HOME:-$HOME/.cache}/tarvel1}
qt_windows=$deposito/qt-windows-$versione_qt
