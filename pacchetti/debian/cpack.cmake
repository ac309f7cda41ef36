# The Debian package of what pacchetti/debian/fai has laid out.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tarvel1)
set(CPACK_PACKAGE_VERSION $ENV{VERSIONE})
set(CPACK_INSTALLED_DIRECTORIES $ENV{RADICE} /)
set(CPACK_PACKAGING_INSTALL_PREFIX /)
set(CPACK_PACKAGE_FILE_NAME tarvel1)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER $ENV{MANUTENTORE})
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The messages of a first start that fails, the toolkit's texts in Italian, the font of the drawings.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "x11-utils | zenity | kdialog, qt6-translations-l10n, fonts-dejavu-core")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "properties of prestressed-concrete box-girder sections")
set(CPACK_PACKAGE_DESCRIPTION
"Computes area, centroid, second moments, shear areas, torsion constant and
the unit shear stresses of a single-cell bridge section with two
cantilevers, keeps the sections of a job in a file, and writes dimensioned
drawings. The user interface is in Italian.

The programs are tarvel1, the window; tarvel1-avvia, which starts it on a
folder of the user's own; ostrel, which shows, prints and exports the
drawings; tarvel1-lotto, which computes many sections from a CSV file;
tarvel1-headless, which plays scripted sessions.")
