"""The Debian packages that files of this machine belong to."""
import re
import subprocess


def packages_of(sources):
    """{source: (package, version)} for the files that belong to a Debian package."""
    found = {}
    for source in sources:
        # dpkg knows some files only by their path before /lib became a link to /usr/lib.
        for path in (source, re.sub("^/usr/lib", "/lib", source)):
            done = subprocess.run(["dpkg-query", "--search", path], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                                  text=True)
            if done.returncode == 0:
                found[source] = done.stdout.split(": ")[0].split(",")[0]
                break
    versions = {}
    for name in sorted(set(found.values())):
        versions[name] = subprocess.run(["dpkg-query", "--show", "--showformat=${Version}", name], check=True,
                                        stdout=subprocess.PIPE, text=True).stdout
    return {source: (name.split(":")[0], versions[name]) for source, name in found.items()}
