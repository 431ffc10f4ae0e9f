"""A folder with everything that a request needs: a host's resources, the tool,
a viewer and a browser, a person's settings.

Nothing here sleeps: the viewer and the browser write how they were started to a
pipe, and whoever reads it waits until they have.
"""

import os
import shutil
import tempfile

FRAMEWORK = "Frameworks/com.velmo.vxclientframework.framework/Versions/A/Resources"

RECORDER = """#!/bin/sh
{{ printf '%s\\n' {name} "$XDG_ACTIVATION_TOKEN" "$@"; }} >'{report}'
"""


class World:
    """At first: a product in en_US with one content folder and one page, a
    viewer and a browser, both installed, and a person who wants no online help.
    """

    def __init__(self, product="Foo"):
        self.folder = tempfile.mkdtemp(prefix="velmohelp-python-")
        self.product = product
        self.host = self.path("bin/sketch")
        self.settings = self.path("settings")
        self.content = self.path(
            "settings/reader.VELMO.1/Local Store/Help/manual")
        self.report = self.path("report")
        os.mkfifo(self.report)
        self.environment = {
            "HOME": self.path("home"),
            "XDG_CONFIG_HOME": self.settings,
            "XDG_DATA_HOME": self.path("data"),
            "XDG_CONFIG_DIRS": "/nonexistent",
            "XDG_DATA_DIRS": "/nonexistent",
            "no_proxy": "*",
        }
        self.write(self.host, "#!/bin/sh\n", mode=0o755)
        self.configure()
        self.add_page("intro")
        self.install_viewer()
        self.install_browser()
        self.allow_online(False)

    def close(self):
        """Lets go whoever still waits for a reader, and removes everything."""
        pipe = os.open(self.report, os.O_RDONLY | os.O_NONBLOCK)
        shutil.rmtree(self.folder)
        os.close(pipe)

    def path(self, name):
        return os.path.join(self.folder, name)

    def write(self, name, text, mode=0o644):
        path = self.path(name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        os.chmod(path, mode)
        return path

    def remove(self, name):
        path = self.path(name)
        if os.path.isdir(path):
            shutil.rmtree(path)
        else:
            os.remove(path)

    def config(self, locale="en_US"):
        return f"{self.host}.resources/help/{locale}/{self.product}.helpcfg"

    def configure(self, text=None, locale="en_US"):
        self.write(self.config(locale), text or self.configuration(locale))

    def configuration(self, locale="en_US"):
        return (
            f'<help id="{locale}_{self.product}" path="{self.product}/Cfg"'
            ' appId="reader" pubId="VELMO.1" baseUrl="http://localhost:9/">\n'
            '  <content path="manual" contextSensitivity="yes"/>\n</help>\n')

    def add_page(self, name):
        return self.write(f"{self.content}/{name}.html", "<p>A page</p>")

    def url(self, name):
        path = f"{self.content}/{name}.html".replace(" ", "%20")
        return "file://" + path

    def write_tool(self, lines):
        """What the viewer's tool does, in shell script."""
        self.write(f"{FRAMEWORK}/QTV", "#!/bin/sh\n" + lines, mode=0o755)

    def install_viewer(self, is_installed=True):
        self.write("Viewer.app/bin/Viewer",
                   RECORDER.format(name="viewer", report=self.report), 0o755)
        status = 0 if is_installed else 1
        self.write_tool(
            f"case $1 in\n-appLocation) echo '{self.path('Viewer.app')}';;\n"
            f"*) exit {status};;\nesac\n")

    def install_browser(self):
        browser = self.write(
            "Browser", RECORDER.format(name="browser", report=self.report),
            0o755)
        self.write("data/applications/browser.desktop",
                   "[Desktop Entry]\nType=Application\nName=Browser\n"
                   f'Exec="{browser}" %u\n')
        self.write("settings/mimeapps.list",
                   "[Default Applications]\n"
                   "x-scheme-handler/https=browser.desktop\n")

    def remove_browser(self):
        self.remove("data/applications/browser.desktop")

    def allow_online(self, is_allowed):
        self.write("settings/velmo/com.velmo.VelmoOnlineHelp.conf",
                   f"[Preferences]\nVelmoOnlineDefault={int(is_allowed)}\n")

    def started(self):
        """What was started: its name, the activation token, the arguments."""
        with open(self.report, encoding="utf-8") as pipe:
            return pipe.read().splitlines()
