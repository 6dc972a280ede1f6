#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Prints what the Windows package consists of, as SPDX 2.3 in JSON: each file with its checksums, and
Torvik and all that was built into it or lies beside it, with version and licence. The same package
gives the same text.
usage: sbom_windows.py FOLDER OWN_NAME VERSION      (OWN_NAME: where in the folder the text goes)"""

import hashlib
import json
import os
import subprocess
import sys
from datetime import datetime, timezone
from pathlib import Path
from typing import NamedTuple

LICENCES = Path(__file__).parent.parent / "cmake/linux/copyright"


class Part(NamedTuple):
    """Something of other people. Its version is that of the Debian package that it was taken from."""

    name: str
    debian: str
    licence: str
    holders: str
    link: str  # how torvik.exe and the others hold it
    files: tuple = ()  # patterns of its files in the folder


PARTS = (
    Part("qt6-base", "qt6-base-dev", "LGPL-3.0-only", "The Qt Company Ltd and contributors",
         "DYNAMIC_LINK", ("Qt6*.dll", "platforms/*", "styles/*")),
    Part("pugixml", "libpugixml-dev", "MIT", "2006-2022 Arseny Kapoulkine", "STATIC_LINK"),
    Part("clipper", "libpolyclipping-dev", "BSL-1.0", "2010-2017 Angus Johnson", "STATIC_LINK"),
    Part("hershey-fonts-data", "hershey-fonts-data", "LicenseRef-Hershey",
         "Dr. A. V. Hershey, James Hurt", "CONTAINS"),
    Part("gcc-runtime", "g++-mingw-w64-x86-64-posix", "GPL-3.0-or-later WITH GCC-exception-3.1",
         "Free Software Foundation, Inc.", "DYNAMIC_LINK", ("libstdc++-6.dll", "libgcc_s_seh-1.dll")),
    Part("winpthreads", "mingw-w64-x86-64-dev", "MIT AND BSD-3-Clause",
         "mingw-w64 project, Lockless Inc., The Regents of the University of California",
         "DYNAMIC_LINK", ("libwinpthread-1.dll",)),
)


def version_of(part):
    """GCC's package counts its own versions, so the compiler is asked."""
    if part.name == "gcc-runtime":
        command = ["x86_64-w64-mingw32-g++-posix", "-dumpfullversion"]
    else:
        command = ["dpkg-query", "-W", "-f", "${source:Version}", part.debian]
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout.strip()


def hershey_licence():
    """As it stands in the file of licences: set in by one blank."""
    text = LICENCES.read_text().split("License: Hershey\n")[1].split("\n\n")[0]
    return "\n".join(line[1:] for line in text.splitlines())


def package(name, version, licence, holders, **more):
    return {"SPDXID": f"SPDXRef-{name}", "name": name, "versionInfo": version,
            "downloadLocation": "NOASSERTION", "filesAnalyzed": False, "licenseConcluded": licence,
            "licenseDeclared": licence, "copyrightText": holders, **more}


def owner_of(path, folder):
    """The part that a file comes from; None: Torvik itself."""
    name = path.relative_to(folder)
    return next((part for part in PARTS if any(name.match(p) for p in part.files)), None)


def described(path, folder, number):
    content = path.read_bytes()
    part = owner_of(path, folder)
    licence = "NOASSERTION" if "licences" in path.parts else part.licence if part else "MIT"
    return {"SPDXID": f"SPDXRef-File-{number}", "fileName": f"./{path.relative_to(folder)}",
            "checksums": [{"algorithm": name, "checksumValue": hashlib.new(name, content).hexdigest()}
                          for name in ("SHA1", "SHA256")],
            "licenseConcluded": licence, "copyrightText": "NOASSERTION"}


def verification_code(files):
    sums = "".join(sorted(file["checksums"][0]["checksumValue"] for file in files))
    return {"packageVerificationCodeValue": hashlib.sha1(sums.encode()).hexdigest()}


def related(one, how, other):
    return {"spdxElementId": one, "relationshipType": how, "relatedSpdxElement": other}


def main():
    folder, own_name, version = Path(sys.argv[1]), sys.argv[2], sys.argv[3]
    paths = sorted(p for p in folder.rglob("*") if p.is_file() and p != folder / own_name)
    files = [described(path, folder, number) for number, path in enumerate(paths, 1)]
    code = verification_code(files)["packageVerificationCodeValue"]

    torvik = package("torvik", version, "MIT", "2026 The Torvik authors",
                     primaryPackagePurpose="APPLICATION")
    relations = [related("SPDXRef-DOCUMENT", "DESCRIBES", torvik["SPDXID"])]
    others = {}
    for part in PARTS:
        others[part.name] = package(part.name, version_of(part), part.licence, part.holders,
                                    sourceInfo=f"built from or taken from Debian's {part.debian}")
        relations.append(related(torvik["SPDXID"], part.link, others[part.name]["SPDXID"]))
    own = {}
    for path, file in zip(paths, files):
        part = owner_of(path, folder)
        owner = others[part.name] if part else torvik
        own.setdefault(owner["SPDXID"], []).append(file)
        relations.append(related(owner["SPDXID"], "CONTAINS", file["SPDXID"]))
    for one in (torvik, *others.values()):
        if one["SPDXID"] in own:
            one["filesAnalyzed"] = True
            one["packageVerificationCode"] = verification_code(own[one["SPDXID"]])
    torvik["packageVerificationCode"]["packageVerificationCodeExcludedFiles"] = [f"./{own_name}"]

    made = datetime.fromtimestamp(int(os.environ["SOURCE_DATE_EPOCH"]), timezone.utc)
    print(json.dumps({
        "spdxVersion": "SPDX-2.3", "dataLicense": "CC0-1.0", "SPDXID": "SPDXRef-DOCUMENT",
        "name": f"torvik-{version}-windows",
        "documentNamespace": f"https://torvik.example/spdx/torvik-{version}-windows-{code}",
        "creationInfo": {"created": made.strftime("%Y-%m-%dT%H:%M:%SZ"),
                         "creators": ["Organization: The Torvik authors", "Tool: sbom_windows.py"]},
        "packages": [torvik, *others.values()], "files": files, "relationships": relations,
        "hasExtractedLicensingInfos": [
            {"licenseId": "LicenseRef-Hershey", "name": "Hershey",
             "extractedText": hershey_licence()}],
    }, indent=1))


if __name__ == "__main__":
    main()
