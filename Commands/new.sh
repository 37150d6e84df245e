# SPDX-License-Identifier: MIT
# Group: everyday
# Help: <folder> <name> | write a small application to begin with
# Arguments: 2
source Commands/Support/Command.bash

# Lengths count bytes, and ranges contain only ASCII letters, whatever the language of the user.
export LC_ALL=C

refuse()
{
    fail "$1" 2
}

# Fails unless the name can be that of an application, its program and its CMake targets: <name>
check_name()
{
    local keywords=' alignas alignof and and_eq asm auto bitand bitor bool break case catch char char8_t char16_t
        char32_t class co_await co_return co_yield compl concept const consteval constexpr constinit const_cast continue
        decltype default delete do double dynamic_cast else enum explicit export extern false float for friend goto if
        inline int long mutable namespace new noexcept not not_eq nullptr operator or or_eq private protected public
        register reinterpret_cast requires return short signed sizeof static static_assert static_cast struct switch
        template this thread_local throw true try typedef typeid typename union unsigned using virtual void volatile
        wchar_t while xor xor_eq '
    local targets=' ALL_BUILD CMakeFiles HeaderCheck INSTALL Makefile PACKAGE RUN_TESTS Testing ZERO_CHECK all clean
        dialogc edit_cache help install list_install_components package package_source preinstall rebuild_cache test '

    [[ $1 =~ ^[A-Za-z_][A-Za-z0-9_]*$ ]] ||
        refuse "the name must be a C++ identifier of ASCII letters, digits and _, not ${1@Q}"
    [ ${#1} -le 64 ] || refuse "the name must have at most 64 characters, not ${#1}"
    [[ ! ${keywords//[$'\n']/ } = *" $1 "* ]] || refuse "the name must not be a C++ keyword such as '$1'"
    [[ ! ${targets//[$'\n']/ } = *" $1 "* && $1 != DialogManager* ]] ||
        refuse "the name '$1' is taken by CMake or by a part of the library"
}

# Fails unless the application can be written to this folder: <absolute folder>
check_folder()
{
    [[ $1 != *[[:cntrl:]]* && $1 != *[\"\'\\\$\`\;\#%\&*?\<\>\|\(\)\[\]{}!^:=]* ]] ||
        refuse "the folder's path must contain only letters, digits, blanks and /._+@,~-, not ${1@Q}"
    [[ $(realpath -m -- "$1")/ != "$PWD"/* ]] || refuse "$1 is inside this checkout; name a folder outside"
    [ ! -e "$1" ] && [ ! -L "$1" ] || [ -d "$1" ] || refuse "$1 exists and is not a folder"
    [ ! -d "$1" ] || [ -z "$(ls -A -- "$1")" ] || refuse "$1 is not empty"
}

# Removes everything if not everything could be written.
clean_up()
{
    rm -rf -- "$part"
    [ -z "$made" ] || rmdir --ignore-fail-on-non-empty -- "$folder"
}

[ $# -eq 2 ] || wrong_usage 'new takes two arguments: the folder to write to, and the name of the application'
[[ $1 != -* ]] || wrong_usage "new knows no option $1"
[ -n "$1" ] || wrong_usage 'new takes the folder to write to, not an empty text'
folder=$1
[[ $folder = /* ]] || folder=$RUN_FROM/$folder
name=$2
check_name "$name"
check_folder "$folder"

mapfile -d '' files < <(cd Commands/Template && find . -type f -print0)
made=
[ -d "$folder" ] || made=yes
said=$(mkdir -p -- "$folder" 2>&1) || fail "cannot write $folder: ${said##*: }"
part=$folder/.part
trap clean_up EXIT
for file in "${files[@]}"; do
    said=$({ mkdir -p -- "$part/$(dirname "$file")" &&
        sed "s/MyApplication/$name/g" "Commands/Template/$file" >"$part/$file"; } 2>&1) ||
        fail "cannot write $folder: ${said##*: }"
done
said=$(mv -- "$part"/* "$part"/.[!.]* "$folder" 2>&1) || fail "cannot write $folder: ${said##*: }"

printf '%s is in %s; its README.md says more. To build it and run its test:\n\n' "$name" "$folder"
printf '    cmake -S "%s" -B "%s/build" -DDIALOGMANAGER_DIRECTORY="%s"\n' "$folder" "$folder" "$PWD"
printf '    cmake --build "%s/build"\n    ctest --test-dir "%s/build"\n' "$folder" "$folder"
