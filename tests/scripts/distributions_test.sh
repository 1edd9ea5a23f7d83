#!/usr/bin/env bash
# Systems other than a recent Debian: too old, too new, or of another family.

# shellcheck source=tests/scripts/sandbox.bash
. "$(dirname -- "${BASH_SOURCE[0]}")/sandbox.bash"

# qt_is VERSION: a Qt that was installed without the package manager.
qt_is() {
    local part folder=$machine/qt/lib/cmake
    mkdir -p "$machine/qt/plugins/imageformats" "$machine/qt/plugins/platforms" \
        "$machine/qt/translations"
    for part in Widgets OpenGL UiTools LinguistTools; do
        mkdir -p "$folder/Qt6$part"
        touch "$folder/Qt6$part/Qt6${part}Config.cmake"
    done
    touch "$machine/qt/plugins/imageformats/libqtiff.so" \
        "$machine/qt/plugins/platforms/libqwayland-generic.so" "$machine/qt/translations/qtbase_de.qm"
    add_program qmake6 <<END
#!/usr/bin/env bash
case \$2 in
QT_VERSION) echo $1 ;;
QT_INSTALL_LIBS) echo '$machine/qt/lib' ;;
QT_INSTALL_PLUGINS) echo '$machine/qt/plugins' ;;
QT_INSTALL_TRANSLATIONS) echo '$machine/qt/translations' ;;
esac
END
}

# Everything that the program needs, but no package of Debian.
everything_is_there_by_other_means() {
    local program
    qt_is 6.7.2
    add_program g++ <<<'echo "g++ (GCC) 14.1.1 20240620 (Red Hat 14.1.1-6)"'
    mkdir -p "$machine/cups/filter"
    add_program cups-config <<END
case \$1 in
--version) echo 2.4.10 ;;
--serverbin) echo '$machine/cups' ;;
esac
END
    add_program pkg-config <<<'echo 22.12.0'
    add_program fc-list <<<'echo DejaVu Sans Mono'
    for program in ninja gs pdftops qpdf cupsfilter Xvfb xauth xdotool convert compare identify \
        shellcheck; do
        add_program "$program" <<<'exit 0'
    done
    cp "$machine/bin/gs" "$machine/cups/filter/pdftopdf"
}

test_anotherDistributionGetsTheListOfWhatIsMissing() {
    another_distribution
    everything_is_there_by_other_means
    without ninja cups-config
    start run
    expect_status 3
    expect_output 'Fedora Linux 40'
    expect_output 'ninja-build'
    expect_output 'libcups2-dev               >= 2.4'
    expect_no_output 'qt6-base-dev'
    expect_no_call 'cmake --preset'
}

test_anotherDistributionWithEverythingGoesOn() {
    another_distribution
    everything_is_there_by_other_means
    start run
    expect_status 0
    expect_call 'corvana-print in'
}

# Other programs are called convert as well.
test_onlyAllProgramsOfAPackageStandForIt() {
    local program
    another_distribution
    for program in convert compare identify; do
        everything_is_there_by_other_means
        without "$program"
        start test
        expect_status 3
        expect_output 'imagemagick'
    done
    everything_is_there_by_other_means
    start test
    expect_no_output 'imagemagick'
}

test_anotherDistributionThatHasAptAsAToolIsNotInstalledTo() {
    everything_is_there_by_other_means
    not_installed ninja-build
    without ninja
    printf 'ID=opensuse-leap\nID_LIKE="suse opensuse"\nPRETTY_NAME="openSUSE"\n' \
        >"$machine/root/etc/os-release"
    start run --yes
    expect_status 3
    expect_output 'ninja-build'
    expect_no_call 'apt-get'
}

test_aSystemWithoutANameGetsTheList() {
    rm "$machine/root/etc/os-release"
    not_installed xvfb
    start test
    expect_status 3
    expect_output 'This system has packages of its own'
    expect_output 'xvfb'
}

test_derivativesOfDebianAreInstalledTo() {
    printf 'ID=linuxmint\nID_LIKE="ubuntu debian"\n' >"$machine/root/etc/os-release"
    not_installed xvfb
    start test
    expect_status 0
    expect_call 'install --yes --no-install-recommends --no-remove xvfb'
}

test_oldQtIsRefusedBeforeCompiling() {
    installed_as qt6-base-dev 6.2.4+dfsg-2ubuntu1
    offered_as qt6-base-dev 6.2.4+dfsg-2ubuntu1
    start run
    expect_status 3
    expect_output 'qt6-base-dev: 6.2.4, needed is 6.4'
    expect_no_call 'install --yes'
    expect_no_call 'cmake --'
}

test_oldQtOfAnotherDistributionIsRefusedBeforeCompiling() {
    another_distribution
    everything_is_there_by_other_means
    qt_is 6.3.2
    start run
    expect_status 3
    expect_output '6.3.2 is too old'
    expect_no_call 'cmake --preset'
}

test_oldQtIsReplacedWhereANewerOneIsOffered() {
    installed_as qt6-base-dev 6.2.4+dfsg-2
    offered_as qt6-base-dev 6.6.1+dfsg-1
    start run
    expect_status 0
    expect_call 'install --yes --no-install-recommends --no-remove qt6-base-dev'
}

test_aNewQtBesideTheOldPackagesIsEnough() {
    local package
    for package in qt6-base-dev libqt6opengl6-dev qt6-tools-dev; do
        installed_as "$package" 6.2.4+dfsg-2
    done
    qt_is 6.8.0
    start run
    expect_status 0
    expect_no_call apt-get
}

test_theQtOfCmakePrefixPathIsLookedAtFirst() {
    another_distribution
    everything_is_there_by_other_means
    qt_is 6.8.0
    mkdir -p "$machine/qt/bin"
    mv "$machine/bin/qmake6" "$machine/qt/bin/qmake"
    start run
    expect_status 3
    settings=("CMAKE_PREFIX_PATH=$machine/qt:/elsewhere")
    start run
    expect_status 0
}

test_anOldCompilerIsRefused() {
    installed_as g++ 4:11.2.0-1ubuntu1
    offered_as g++ 4:11.2.0-1ubuntu1
    start run
    expect_status 3
    expect_output 'g++: 11.2.0, needed is 12'
}

test_aReleaseWithoutQt6IsRefusedBeforeAnythingIsFetched() {
    local package
    for package in qt6-base-dev libqt6opengl6-dev qt6-tools-dev; do
        not_installed "$package"
        not_offered "$package"
    done
    start run
    expect_status 3
    expect_output 'qt6-base-dev: not offered'
    expect_no_call 'install --yes'
}

test_aPackageThatAnotherOneProvidesIsNotMissing() {
    not_installed libqt6opengl6-dev
    installed_as qt6-base-dev \
        '6.8.2+dfsg-9 libqt6core6-dev-tools (= 6.8.2+dfsg-9), libqt6opengl6-dev (= 6.8.2+dfsg-9)'
    start run
    expect_status 0
    expect_no_call apt-get
}

test_versionsAreComparedAsNumbers() {
    installed_as cmake 3.3.1-1
    offered_as cmake 3.3.1-1
    add_program cmake <<<'echo "cmake version 3.3.1"'
    start run
    expect_status 3
    expect_output 'cmake: 3.3.1, needed is 3.25'
}

test_aPreReleaseOfTheMinimumIsEnough() {
    # Debian 12 has qt6-tools of this version beside a final qt6-base.
    installed_as qt6-tools-dev '6.4.2~rc1-2'
    start run
    expect_status 0
    expect_no_call apt-get
}

run_tests "$@"
