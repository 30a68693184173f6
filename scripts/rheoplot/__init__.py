"""Pictures of results files.

results.py   reads a file: mesh, records, names
outputs.py   what can be shown, and how it is computed from the stored data
figures.py   sizes, axes and texts
scales.py    colours
maps.py      an output over the mesh; arrows.py puts arrows of the flow on it
films.py     an output in motion
floods.py    maximum depth and arrival time
series.py    discharges over time
app.py       the command line
"""
