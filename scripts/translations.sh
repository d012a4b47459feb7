# Sourced by the scripts that handle translations: the languages Quillforge speaks besides
# English, the folders whose texts are translated, and Qt's lupdate (Debian keeps it out of PATH).
# shellcheck shell=bash
quillforge_languages=(de fr es pt_BR ja zh_CN)
quillforge_text_folders=(app home onboarding services model ui platform)
lupdate=$(command -v lupdate || command -v lupdate-qt6 || echo /usr/lib/qt6/bin/lupdate)
