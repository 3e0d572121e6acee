# The reference site. tools/reference writes its pages, scripts/docs builds it.
project = "hux"
author = "the hux authors"
extensions = ["myst_parser"]
source_suffix = {".rst": "restructuredtext", ".md": "markdown"}
exclude_patterns = ["_static", "_templates"]
myst_heading_anchors = 3
html_theme = "furo"
html_title = "hux"
html_static_path = ["_static"]
templates_path = ["_templates"]
html_css_files = ["hux.css"]
html_js_files = ["names-index.js", "names.js"]
html_show_sourcelink = False
html_copy_source = False
html_show_copyright = False
html_sidebars = {
    "**": ["sidebar/brand.html", "sidebar/names.html", "sidebar/scroll-start.html", "sidebar/navigation.html",
           "sidebar/scroll-end.html"]
}
highlight_language = "none"
pygments_style = "tango"
pygments_dark_style = "monokai"
